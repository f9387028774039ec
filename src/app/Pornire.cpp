#include "app/Pornire.h"

#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Foldere.h"
#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"
#include "store/ActualizareBD.h"
#include "store/DateLivrate.h"

#include <QDir>
#include <QFile>

namespace {

RezultatPornire porneste(const QString& applicationPath, const QString& folderLivrat, Mesaje& m) {
    RezultatPornire r;
    r.applicationPath = applicationPath;
    const QString setari = QDir(applicationPath).filePath(Foldere::FisierSetari);

    if (!QFile::exists(setari)) {
        if (!Foldere::PregatesteFolderDate(applicationPath, folderLivrat)) {
            m.Critic(QStringLiteral("Folderul de date %1 nu poate fi creat.")
                         .arg(QDir::toNativeSeparators(applicationPath)));
            return r;
        }
        LocatieBD loc{applicationPath, {}};
        try {
            if (!QFile::exists(loc.FisierSQLite()))
                DateLivrate::Initializeaza(loc, QDir(folderLivrat).filePath(QStringLiteral("data")), m);
        } catch (const Eroare& e) {
            m.Critic(e.text());
            return r;
        }
        ServiciuFisiere::ScrieIni(setari, QStringLiteral("Generale"), QStringLiteral("CaleBD"), applicationPath);
        // A new office starts in the present month, not in one long past.
        const QDate azi = Ceas::Azi();
        ServiciuFisiere::ScrieIni(setari, QStringLiteral("Setari"), QStringLiteral("LunaSetata"),
                                  QString::number(azi.month()));
        ServiciuFisiere::ScrieIni(setari, QStringLiteral("Setari"), QStringLiteral("AnSetat"),
                                  QString::number(azi.year()));
    }

    LocatieBD loc;
    loc.caleBD = ServiciuFisiere::CitesteIni(setari, QStringLiteral("Generale"), QStringLiteral("CaleBD"));
    loc.url = ServiciuFisiere::CitesteIni(setari, QStringLiteral("Generale"), QStringLiteral("ConexiuneBD")).trimmed();
    if (loc.caleBD.isEmpty()) {
        loc.caleBD = applicationPath;
        ServiciuFisiere::ScrieIni(setari, QStringLiteral("Generale"), QStringLiteral("CaleBD"), applicationPath);
    }
    r.caleBD = loc.caleBD;

    if (!loc.EstePostgreSQL()) {
        const QString fisier = loc.FisierSQLite();
        if (ServiciuFisiere::StareFisier(fisier) == 1) {
            if (m.Intrebare(QStringLiteral(
                                "Baza de date %1 nu a fost gasita in locatia %2\nDoriti sa selectati o noua locatie?")
                                .arg(NumeBD, loc.caleBD)))
                r.stare = RezultatPornire::Stare::AlegeLocatie;
            return r;
        }
        if (ServiciuFisiere::StareFisier(fisier) == 2) {
            m.Critic(
                QStringLiteral("Reteaua nu functioneaza sau locatia catre baza de date nu e corecta. Verificati!"));
            return r;
        }
    }
    try {
        r.bd = BazaDate::Deschide(loc);
    } catch (const Eroare& e) {
        if (loc.EstePostgreSQL())
            m.Critic(
                QStringLiteral("Reteaua nu functioneaza sau locatia catre baza de date nu e corecta. Verificati!\n%1")
                    .arg(e.text()));
        else
            m.Critic(e.text());
        return r;
    }
    try {
        r.setari = IncarcaSetari(setari);
        r.setari.CaleBD = loc.caleBD;
        ActualizareBD(*r.bd, loc.caleBD, m);
    } catch (const Eroare& e) {
        m.Critic(e.text());
        r.bd.reset();
        return r;
    }
    r.stare = RezultatPornire::Stare::Deschisa;
    return r;
}

} // namespace

RezultatPornire PornesteBaza(const QString& applicationPath, const QString& folderLivrat, Mesaje& m) {
    // A settings file that cannot be read or written stops the start with its message, like any
    // other failure before the main window.
    try {
        return porneste(applicationPath, folderLivrat, m);
    } catch (const Eroare& e) {
        m.Critic(e.text());
    }
    RezultatPornire r;
    r.applicationPath = applicationPath;
    return r;
}

