#include "documents/DeschideDocument.h"

#include "base/Mesaje.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <vector>

namespace {

const QString SfatOptiuni =
    QStringLiteral("Setati corect din Optiuni, aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");
const QString SfatDispozitii =
    QStringLiteral("Setati corect aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");

struct Candidat {
    const char* nume;
    QStringList foldere; // beyond the PATH: where the installers put them without touching it
};

// The first of the candidates that is installed.
ProgramDocument Primul(const std::vector<Candidat>& candidati, const QString& cale, const MediuDeschidere& mediu) {
    for (const Candidat& c : candidati) {
        const QString gasit =
            mediu.CautaProgram ? mediu.CautaProgram(QString::fromLatin1(c.nume), c.foldere) : QString();
        if (!gasit.isEmpty()) return {ProgramDocument::Fel::Program, gasit, {QDir::toNativeSeparators(cale)}};
    }
    return {ProgramDocument::Fel::Absent, QString::fromLatin1(candidati.front().nume), {}};
}

ProgramDocument LibreOffice(const QString& cale, const MediuDeschidere& mediu) {
    const QStringList foldere{QStringLiteral("C:/Program Files/LibreOffice/program"),
                              QStringLiteral("C:/Program Files (x86)/LibreOffice/program"),
                              QStringLiteral("/Applications/LibreOffice.app/Contents/MacOS"),
                              QStringLiteral("/opt/libreoffice/program")};
    return Primul({{"soffice", foldere}, {"libreoffice", {}}}, cale, mediu);
}

// A program that may be missing gives way to the default application.
ProgramDocument SauImplicit(ProgramDocument p) {
    if (p.fel == ProgramDocument::Fel::Absent) return {ProgramDocument::Fel::Implicit, {}, {}};
    return p;
}

bool Deschide(const ProgramDocument& p, const QString& cale, const MediuDeschidere& mediu, const QString& sfat,
              Mesaje& m) {
    QString motiv;
    switch (p.fel) {
    case ProgramDocument::Fel::Nimic:
        return true;
    case ProgramDocument::Fel::Nefinalizat:
        m.Informatie(QStringLiteral("Aceasta varianta nu e finalizata!"));
        return false;
    case ProgramDocument::Fel::Absent:
        motiv = QStringLiteral("Programul %1 nu este instalat.").arg(p.program);
        break;
    case ProgramDocument::Fel::Implicit:
        if (mediu.DeschideImplicit && mediu.DeschideImplicit(QUrl::fromLocalFile(cale))) return true;
        motiv = QStringLiteral("Nici o aplicatie nu a deschis fisierul %1.").arg(QDir::toNativeSeparators(cale));
        break;
    case ProgramDocument::Fel::Program:
        motiv = mediu.PornesteProgram ? mediu.PornesteProgram(p.program, p.argumente)
                                      : QStringLiteral("Programul %1 nu poate fi pornit.").arg(p.program);
        if (motiv.isEmpty()) return true;
        break;
    }
    m.Critic(motiv + QStringLiteral(" \n") + sfat);
    return false;
}

} // namespace

MediuDeschidere MediuDeschidere::Sistem() {
    MediuDeschidere d;
    d.CautaProgram = [](const QString& nume, const QStringList& foldere) {
        QString gasit = QStandardPaths::findExecutable(nume);
        if (gasit.isEmpty() && !foldere.isEmpty()) gasit = QStandardPaths::findExecutable(nume, foldere);
        return gasit;
    };
    d.PornesteProgram = [](const QString& program, const QStringList& argumente) {
        QProcess p;
        p.setProgram(program);
        p.setArguments(argumente);
        if (p.startDetached()) return QString();
        const QString motiv = p.errorString();
        return motiv.isEmpty() ? QStringLiteral("Programul %1 nu a pornit.").arg(program) : motiv;
    };
    return d;
}

ProgramDocument AlegeProgram(int appWord, const QString& cale, const MediuDeschidere& mediu) {
    switch (appWord) {
    case 1:
        return {ProgramDocument::Fel::Implicit, {}, {}};
    case 2:
        return LibreOffice(cale, mediu);
    case 3:
        return SauImplicit(Primul(
            {{"wordpad", {QStringLiteral("C:/Program Files/Windows NT/Accessories")}}, {"abiword", {}}, {"ted", {}}},
            cale, mediu));
    case 4:
    case 5:
        return SauImplicit(Primul({{"wps", {}}}, cale, mediu));
    default:
        return {};
    }
}

ProgramDocument AlegeProgramDispozitii(int appWord, const QString& cale, const MediuDeschidere& mediu) {
    if (appWord == 1 || appWord == 2) return AlegeProgram(appWord, cale, mediu);
    if (appWord == 3) return {ProgramDocument::Fel::Nefinalizat, {}, {}};
    return {};
}

bool DeschideDocument(const QString& cale, int appWord, const MediuDeschidere& mediu, Mesaje& m) {
    return Deschide(AlegeProgram(appWord, cale, mediu), cale, mediu, SfatOptiuni, m);
}

bool DeschideDispozitiile(const QString& cale, int appWord, const MediuDeschidere& mediu, Mesaje& m) {
    return Deschide(AlegeProgramDispozitii(appWord, cale, mediu), cale, mediu, SfatDispozitii, m);
}
