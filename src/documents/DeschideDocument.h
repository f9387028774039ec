#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

class Mesaje;

// How a written document reaches the word processor that the settings name (AppWord). The
// program keeps no handle of it and does not wait: the clerk prints from there.

// What the machine offers; tests replace each part so that nothing is started.
struct MediuDeschidere {
    // The full path of an installed program, looked up on the PATH and then in `foldere`; empty
    // when it is not there.
    std::function<QString(const QString& nume, const QStringList& foldere)> CautaProgram;
    // Opens a file with the desktop's default application for its kind; false when none did.
    std::function<bool(const QUrl& fisier)> DeschideImplicit;
    // Starts a program without waiting for it; an empty text when it started, else the reason.
    std::function<QString(const QString& program, const QStringList& argumente)> PornesteProgram;

    // Programs looked up with QStandardPaths::findExecutable and started detached. The default
    // application is left to the caller, which alone may reach the desktop.
    static MediuDeschidere Sistem();
};

// What opens one document.
struct ProgramDocument {
    enum class Fel {
        Nimic,       // nothing opens it, and nothing is said
        Implicit,    // the desktop's default application
        Program,     // `program` with `argumente`
        Absent,      // the program asked for is not installed: `program` names it
        Nefinalizat, // the choice is not offered by this command
    };
    Fel fel = Fel::Nimic;
    QString program;
    QStringList argumente;

    friend bool operator==(const ProgramDocument&, const ProgramDocument&) = default;
};

// The choice of AppWord for the document at `cale`: 1 the default application; 2 LibreOffice;
// 3 a plain word processor (WordPad, AbiWord, Ted) when one is installed, else the default;
// 4 and 5 WPS Office when installed, else the default; any other value nothing.
ProgramDocument AlegeProgram(int appWord, const QString& cale, const MediuDeschidere& mediu);

// The reduced choice of the bulk printing of dispositions: 1 and 2 as above, 3 not finished,
// 4, 5 and any other value nothing.
ProgramDocument AlegeProgramDispozitii(int appWord, const QString& cale, const MediuDeschidere& mediu);

// Opens the document by AppWord. True when it was handed on (or when the value opens nothing);
// on a failure the clerk is told, with the advice to set the application in the options.
bool DeschideDocument(const QString& cale, int appWord, const MediuDeschidere& mediu, Mesaje& m);

// The same for the file of the bulk printing of dispositions, with its reduced choice and its
// own wording of the advice.
bool DeschideDispozitiile(const QString& cale, int appWord, const MediuDeschidere& mediu, Mesaje& m);
