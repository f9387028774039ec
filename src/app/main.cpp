#include "base/Foldere.h"
#include "app/Pornire.h"
#include "store/Program.h"
#include "ui/UiMesaje.h"
#include "ui/UiMargine.h"
#include "app/frmGeneral.h"
#include "app/frmLogin.h"
#include "app/frmMain.h"
#include "base/Eroare.h"
#include "maintenance/Updater.h"
#include "maintenance/frmUpdate.h"
#include "maintenance/Copii.h"
#include "store/CopieInainte.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QProgressDialog>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

namespace {

// The copy goes back on a thread of its own while a window says so: its check takes minutes on a large
// office's file.
void restaureaza(const QString& copie, const LocatieBD& loc, UiMesaje& mesaje) {
    QProgressDialog d(QStringLiteral("Copia se verifica si se pune inapoi..."), QString(), 0, 0);
    d.setWindowTitle(QStringLiteral("Restaurare copie"));
    d.setMinimumDuration(0);
    d.show();
    QString deoparte, eroare;
    std::unique_ptr<QThread> fir(QThread::create([&] {
        try {
            deoparte = Copii::Restaureaza(copie, loc);
        } catch (const Eroare& e) {
            eroare = e.text();
        }
    }));
    QEventLoop bucla;
    QObject::connect(fir.get(), &QThread::finished, &bucla, &QEventLoop::quit);
    fir->start();
    bucla.exec();
    d.close();
    if (!eroare.isEmpty())
        mesaje.Critic(eroare);
    else
        mesaje.Informatie(QStringLiteral("Copia a fost pusa inapoi. Baza de date de dinainte este in %1")
                              .arg(QDir::toNativeSeparators(deoparte)));
}

int porneste(QApplication& app, UiMesaje& mesaje) {
    RezultatPornire pornire = PornesteBaza(Foldere::ApplicationPath(), Foldere::FolderLivrat(), mesaje);
    if (pornire.stare == RezultatPornire::Stare::AlegeLocatie) {
        frmGeneral locatie(QDir(pornire.applicationPath).filePath(Foldere::FisierSetari), pornire.caleBD, mesaje);
        locatie.exec();
        return 0;
    }
    if (pornire.stare != RezultatPornire::Stare::Deschisa) return 0;

    if (!pornire.setari.OpresteActualizareAutomata) {
        const auto mediu = Updater::Mediu::DinProgram(pornire.setari.ServerActualizare, pornire.applicationPath);
        if (mediu.Activ()) {
            frmUpdate actualizare(*pornire.bd, mediu, app.arguments().mid(1), mesaje);
            actualizare.exec();
            if (actualizare.predare) {
                // The new build takes over from here; this one must be gone before it copies itself.
                if (QProcess::startDetached(actualizare.predare->program, actualizare.predare->argumente)) return 0;
                Updater::AnuleazaPredare(mediu, actualizare.rezultat);
            }
        }
    }

    if (!pornire.setari.Parola.isEmpty()) {
        frmLogin login(pornire.setari.Parola, mesaje);
        login.exec();
        if (!login.LoginSucceeded) return 0;
    }

    QString deRestaurat;
    int cod = 0;
    {
        Program program{*pornire.bd, pornire.setari, pornire.applicationPath};
        frmMain fereastra(program, mesaje);
        fereastra.show();
        CopieInainte::Seteaza([&fereastra](BazaDate&, const QString& motiv) { fereastra.CopieDeSiguranta(motiv); });
        fereastra.PornesteCopiaZilei();
        cod = app.exec();
        CopieInainte::Seteaza({});
        deRestaurat = fereastra.RestaurareCeruta;
    }
    if (deRestaurat.isEmpty()) return cod;
    // The connection is closed before its file is replaced; the program then starts again on it.
    const LocatieBD loc = pornire.bd->locatie();
    pornire.bd.reset();
    restaureaza(deRestaurat, loc, mesaje);
    return porneste(app, mesaje);
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ferolanta"));
    QApplication::setOrganizationName(QStringLiteral("Ferolanta"));

    // The new build started by the old one to copy itself over it: no window, no lock, and it
    // ends once the updated program is started.
    if (const auto clonare = Updater::ClonareLaPornire(app.arguments().mid(1),
                                                       QDir(Foldere::ApplicationPath()).filePath(Foldere::FisierSetari),
                                                       QCoreApplication::applicationFilePath())) {
        if (!clonare->reusit) {
            UiMesaje mesaje;
            mesaje.Critic(QStringLiteral("Programul %1 nu a putut fi inlocuit cu versiunea noua. Porneste versiunea "
                                         "de pana acum.")
                              .arg(QDir::toNativeSeparators(clonare->tinta)));
        }
        QThread::msleep(1000);
        if (!clonare->urmator.program.isEmpty())
            QProcess::startDetached(clonare->urmator.program, clonare->urmator.argumente);
        return 0;
    }

    // One copy per computer: a second one ends at once, silently.
    QString folderBlocare = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folderBlocare.isEmpty()) folderBlocare = QDir::tempPath();
    QLockFile blocare(QDir(folderBlocare).filePath(QStringLiteral("ferolanta.lock")));
    blocare.setStaleLockTime(0);
    if (!blocare.tryLock(0)) return 0;

    UiMesaje mesaje;
    // Whatever fails before or while the windows are made is shown to the clerk, and the program
    // ends cleanly instead of vanishing.
    int cod = 1;
    try {
        LaMargine(mesaje, [&] { cod = porneste(app, mesaje); });
    } catch (const std::exception& e) {
        mesaje.Critic(QStringLiteral("Eroare neasteptata: %1").arg(QString::fromLocal8Bit(e.what())));
    }
    return cod;
}
