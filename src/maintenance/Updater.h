#pragma once

#include "maintenance/Descarcare.h"

#include <QObject>
#include <QStringList>
#include <QThread>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

class BazaDate;
class Mesaje;

// The program's update of itself from the maker's server: a newer build replaces the executable
// in three steps, and the income thresholds come from the same folder.
namespace Updater {

// The platform's executable names: "new" and the running program's name, each with the
// platform's suffix.
QString SufixExecutabil();
inline const QString Nou = QStringLiteral("new");
QString NumeExecutabil(const QString& numeFaraSufix);
// The running program's name without the platform's suffix, from its path.
QString NumeFaraSufix(const QString& caleExecutabil);

inline const QString FisierVersiune = QStringLiteral("version.txt");
inline const QString VerbClonare = QStringLiteral("--clone");
inline const QString VerbStergere = QStringLiteral("--delete");
inline const QString ArgumentStergereNou = QStringLiteral("--delete@new");

// Where the pass works and what it may touch.
struct Mediu {
    QUrl baza;                // the server's folder, ending in "/"; empty: no update pass
    QString exe;              // the running program's name, without suffix
    QString folderProgram;    // holds version.txt
    QString folderExecutabil; // holds the executable and the downloaded build
    bool portabil = false;    // the executable is the office's own copy and may be replaced
    int timpMaximMs = Descarcare::TimpMaximImplicitMs;
    Descarcare::Progres progresBuild; // hears the download of a new build, on the pass's thread

    // The running program with the server address of the settings. Portable when the data folder
    // is the executable's folder and that folder can be written.
    static Mediu DinProgram(const QString& serverActualizare, const QString& applicationPath);
    bool Activ() const { return !baza.isEmpty(); }
    QUrl Adresa(const QString& relativ) const;
    QUrl AdresaVersiune() const;
    QUrl AdresaBuild() const;
    QUrl AdresaIstoric() const;
    QUrl AdresaPraguri() const;
    QString CaleVersiune() const;
    QString CaleNou() const;
};

// The server address as written in the settings: a folder, so a missing final "/" is added;
// blank or not a web address gives an empty one.
QUrl BazaDinText(const QString& text);

// What the update window says while a new build comes: the share received, or the amount when the
// server does not tell the size.
QString TextProgres(qint64 primit, qint64 total);

// The lines of a text trimmed and joined with the line breaks gone.
QString CuratareText(const QString& text);

// Whether `corp` is what the checksum file names: its first 64 characters, hex digits in either case.
bool SumaCorespunde(const QByteArray& corp, const QByteArray& fisierSuma);

// A program to start and its arguments.
struct Lansare {
    QString program;
    QStringList argumente;
};

struct RezultatVerificare {
    bool serverRaspunde = false; // the server gave an HTTP answer, of any status, to the version request
    QString versiuneLocala;
    QString versiuneServer;
    // A verified build is in place and version.txt rewritten: start it and end at once.
    std::optional<Lansare> predare;
    // Why a due build was not taken; empty when none was due or it was taken.
    QString refuz;
    // The thresholds to store: checked, and different from the ones kept.
    std::optional<QString> praguri;
};

// The whole pass on the network and in the program folder; the database is the caller's, given
// as the thresholds it keeps. Waits for each answer, so it belongs on a thread of its own.
// A server that lets a request lapse is taken as down: nothing more is asked of it.
RezultatVerificare Verifica(const Mediu& m, const std::optional<QString>& praguriCurente);

// The thresholds of the database, and their replacement after a pass; the replacement is one
// statement, so it is whole or not at all.
std::optional<QString> PraguriCurente(BazaDate& db);
void AplicaPraguri(BazaDate& db, const QString& praguri);

// The update log's text, through CuratareText's line handling left alone; nothing when the
// server does not give it.
std::optional<QString> Istoric(const Mediu& m);

// The command line's hand-over form: the arguments joined, split at the first "@".
struct Argumente {
    QString verb;
    QString operand;
};
std::optional<Argumente> CitesteArgumente(const QStringList& argumente);

// The build that was handed over, removed; true when it is gone.
bool StergeNou(const Mediu& m);

// Started by the helper after a hand-over ("--delete@new"): the helper's file is removed and
// true returned, so that the window can say the program was updated.
bool TocmaActualizat(const QStringList& argumente, const Mediu& m);

// The verified build could not be started: version.txt goes back to what it was, so that the
// next start tries again, and the build is removed.
void AnuleazaPredare(const Mediu& m, const RezultatVerificare& r);

// What the hand-over helper does when it was started with "--clone@<operand>": the running
// file `sursa` copies itself over the program named by the operand in its own folder.
struct RezultatClonare {
    bool reusit = false;
    QString tinta;
    Lansare urmator; // the program to start next, with "--delete@new"; none for an operand that is no name
};
RezultatClonare Cloneaza(const QString& sursa, const QString& operand);

// A process started by the old build to copy itself: with updates on and "--clone@" on the
// command line, the copy is made and the result returned; the caller waits a second, starts
// `urmator` and ends. Nothing for an ordinary start.
std::optional<RezultatClonare> ClonareLaPornire(const QStringList& argumente, const QString& fisierSetari,
                                                const QString& executabil);

// Runs `lucru` on a thread of its own and hands its result to `gata` on the thread of `context`,
// unless `context` is gone by then.
template <class T> void InFundal(QObject* context, std::function<T()> lucru, std::function<void(T)> gata) {
    auto rezultat = std::make_shared<std::optional<T>>();
    QThread* fir = QThread::create([rezultat, lucru] { *rezultat = lucru(); });
    QObject::connect(fir, &QThread::finished, context, [rezultat, gata] {
        if (*rezultat) gata(std::move(**rezultat));
    });
    QObject::connect(fir, &QThread::finished, fir, &QObject::deleteLater);
    fir->start();
}

} // namespace Updater
