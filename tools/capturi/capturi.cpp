// Pictures of the program's windows for the manual and for a look over the layout after a change:
//   ferolanta_capturi FOLDER
// builds a demo database of a few hundred requests in a temporary folder, opens the main window and
// each dialog on it without waiting for a click, and writes one PNG per window into FOLDER. It runs
// headless too: QT_QPA_PLATFORM=offscreen ferolanta_capturi FOLDER.

#include "app/frmMain.h"
#include "app/frmOptiuni.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Foldere.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "cases/ModelCereri.h"
#include "cases/frmAddActe.h"
#include "cases/frmAddAnchete.h"
#include "cases/frmAddCerere.h"
#include "cases/frmAddDispozitie.h"
#include "cases/frmAddLocuinta.h"
#include "cases/frmAddMembru.h"
#include "cases/frmAddVenituri.h"
#include "cases/frmAdeverinte.h"
#include "cases/frmAnexa2.h"
#include "cases/frmBife.h"
#include "cases/frmISR.h"
#include "cases/frmListaActeExpira.h"
#include "cases/frmMembrii.h"
#include "maintenance/Demo.h"
#include "reference/DateReferinta.h"
#include "cases/Istoric.h"
#include "maintenance/Copii.h"
#include "maintenance/frmImport.h"
#include "maintenance/frmMentenanta.h"
#include "maintenance/frmRestaurare.h"
#include "reference/frmBaremBun.h"
#include "reference/frmGenerareAn.h"
#include "reference/frmChLunaAn.h"
#include "reference/frmDatePrimarie2.h"
#include "reference/frmMotive.h"
#include "reference/frmSate.h"
#include "reports/Desen.h"
#include "reports/UiGrila.h"
#include "reports/frmBorderou.h"
#include "reports/frmRapoarte.h"
#include "reports/frmRapoarte2.h"
#include "store/BazaDate.h"
#include "store/DateLivrate.h"
#include "store/Program.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <cstdio>

namespace {

constexpr int Cereri = 300;

// The town hall's record, so that the main window opens without asking for it.
void ScriePrimaria(BazaDate& db) {
    const char* valori[DateReferinta::NrCampuriPrimarie] = {"Primaria Comunei Branesti",
                                                            "4420538",
                                                            "IF",
                                                            "Ilfov",
                                                            "Branesti",
                                                            "Sos. Garii",
                                                            "1A",
                                                            "Ion Popescu",
                                                            "Ana Dima",
                                                            "Maria Ene",
                                                            "2850315400128",
                                                            "Branesti",
                                                            "077030"};
    DateReferinta::DatePrimarie d;
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i)
        d.text[size_t(i)] = QString::fromUtf8(valori[i]);
    d.TipLocalitate = 1;
    DateReferinta::SalveazaDatePrimarie(db, d);
}

// The first key of a query's first row, 0 when it has none.
qint64 Cheie(BazaDate& db, const QString& sql, qint64 valoare = 0) {
    Interogare q(db, sql);
    if (sql.contains(QLatin1Char('?'))) q.Leaga(valoare);
    return q.Exista() ? q.Intreg(0) : 0;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "Folosire: ferolanta_capturi FOLDER\n");
        return 2;
    }
    const QDir iesire(QString::fromLocal8Bit(argv[1]));
    if (!QDir().mkpath(iesire.absolutePath())) {
        std::fprintf(stderr, "Folderul %s nu poate fi creat\n", argv[1]);
        return 1;
    }
    QTemporaryDir dir;
    MesajeTacute m;
    LocatieBD loc;
    loc.caleBD = dir.path();
    std::unique_ptr<BazaDate> db;
    try {
        db = DateLivrate::Initializeaza(loc, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")), m);
        Demo::Optiuni o;
        o.cereri = Cereri;
        Demo::Genereaza(*db, o);
        ScriePrimaria(*db);
    } catch (const Eroare& e) {
        std::fprintf(stderr, "Baza demonstrativa nu a putut fi creata: %s\n", qPrintable(e.text()));
        return 1;
    }

    Setari setari;
    setari.CaleBD = dir.path();
    setari.LunaSetata = Ceas::Azi().month();
    setari.AnSetat = std::int16_t(Ceas::Azi().year());
    Program program{*db, setari, dir.path()};

    int erori = 0;
    const auto captura = [&](QWidget& w, const char* nume) {
        w.show();
        QApplication::processEvents();
        const QString cale = iesire.filePath(QLatin1String(nume) + QStringLiteral(".png"));
        if (w.grab().save(cale)) {
            std::printf("%s\n", qPrintable(cale));
        } else {
            std::fprintf(stderr, "%s nu a putut fi scris\n", qPrintable(cale));
            ++erori;
        }
        w.hide();
    };

    // A request with an inquiry and a disposition, so that their editors show data.
    const qint64 ancheta = Cheie(*db, QStringLiteral("SELECT AnchetaID FROM Anchete ORDER BY AnchetaID"));
    qint64 cerere = Cheie(*db, QStringLiteral("SELECT CerereID FROM Anchete WHERE AnchetaID = ?"), ancheta);
    if (cerere == 0) cerere = Cheie(*db, QStringLiteral("SELECT CerereID FROM Cereri ORDER BY CerereID"));
    qint64 dispozitie = Cheie(*db, QStringLiteral("SELECT DispozitieID FROM Dispozitii WHERE CerereID = ?"), cerere);
    if (dispozitie == 0) dispozitie = Cheie(*db, QStringLiteral("SELECT DispozitieID FROM Dispozitii"));

    {
        frmMain f(program, m);
        f.resize(1280, 800);
        for (int i = 0; i < f.model()->rowCount(); ++i)
            if (f.model()->Rand(i)->CerereID == cerere) {
                f.SelecteazaRand(i);
                break;
            }
        captura(f, "frmMain");
        // A folder for the copies that can't be made: the day's copy fails, and says so once.
        QFile blocat(QDir(loc.caleBD).filePath(Copii::NumeFolder));
        if (blocat.open(QIODevice::WriteOnly)) blocat.close();
        f.PornesteCopiaZilei();
        QElapsedTimer t;
        t.start();
        while (t.elapsed() < 3000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        captura(f, "frmMain-copie-esuata");
        QFile::remove(blocat.fileName());
    }
    {
        Copii::FaCopie(loc, QDateTime::currentDateTime().addDays(-1));
        Copii::FaCopie(loc);
        frmRestaurare f(loc, m);
        captura(f, "frmRestaurare");
    }
    Istoric::ScrieSchimbari(*db, cerere, {}, FelSchimbare::Modificare, QStringLiteral("Cerere modificata"),
                            {{QStringLiteral("Stare"), QStringLiteral("1"), QStringLiteral("2")},
                             {QStringLiteral("VenitTotal"), QStringLiteral("754.90"), QStringLiteral("812.40")}});
    frmAddCerere editor(*db, setari, m, DeschidereCerere{2, cerere});
    captura(editor, "frmAddCerere");
    editor.tabCerere->setCurrentIndex(editor.tabCerere->count() - 1);
    captura(editor, "frmAddCerere-istoric");
    editor.tabCerere->setCurrentIndex(0);
    {
        frmImport f(*db, m, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")));
        captura(f, "frmImport");
    }
    StareCerere& stare = *editor.Stare();
    if (stare.MatriceMembri && !stare.MatriceMembri->empty()) {
        frmAddMembru f(*db, m, stare, ContextPersoana{2, 0, setari.LunaSetata, setari.AnSetat});
        captura(f, "frmAddMembru");
    }
    {
        frmAddVenituri f(*db, m, stare, setari.CuloareVenit);
        captura(f, "frmAddVenituri");
    }
    {
        frmBife f(*db, m, stare);
        captura(f, "frmBife");
    }
    {
        frmAddLocuinta f(*db, m, stare);
        captura(f, "frmAddLocuinta");
    }
    {
        frmAddActe f(*db, m, stare);
        captura(f, "frmAddActe");
    }
    {
        frmAdeverinte f(*db, m);
        captura(f, "frmAdeverinte");
    }
    {
        frmListaActeExpira f(*db, m);
        captura(f, "frmListaActeExpira");
    }
    {
        frmMembrii f(*db, m);
        captura(f, "frmMembrii");
    }
    {
        frmAddDispozitie f(*db, m, 2, 0, dispozitie);
        captura(f, "frmAddDispozitie");
    }
    {
        const int copii = int(Cheie(*db, QStringLiteral("SELECT NrCopii FROM Cereri WHERE CerereID = ?"), cerere));
        frmAddAnchete f(*db, m, ancheta ? 2 : 1, cerere, ancheta, copii);
        captura(f, "frmAddAnchete");
    }
    {
        frmAnexa2 f(*db, m, setari.LunaSetata, setari.AnSetat);
        captura(f, "frmAnexa2");
    }
    {
        frmOptiuni f(setari, QDir(dir.path()).filePath(Foldere::FisierSetari), m);
        captura(f, "frmOptiuni");
        if (auto* t = f.findChild<QTabWidget*>(QStringLiteral("tabOptiuni"))) t->setCurrentIndex(2);
        captura(f, "frmOptiuni_Rapoarte");
    }
    {
        frmRapoarte f(program, m);
        f.resize(1280, 800);
        // A list grid as the builders make it: head, title, header row, rows with their lines.
        Raport::Grila g = Raport::GrilaNoua(setari);
        g.SeteazaRanduri(16);
        g.SeteazaColoane(8);
        const int latimi[] = {30, 60, 130, 200, 110, 60, 250};
        const char* titluri[] = {"Nr. Crt.", "Nr dosar", "Nr/Data cerere", "Nume si Prenume",
                                 "CNP",      "Nr copii", "Adresa"};
        for (int c = 1; c <= 7; ++c) {
            g.SeteazaLatimeColoana(c, latimi[c - 1]);
            g.Scrie(5, c, QString::fromUtf8(titluri[c - 1]));
        }
        g.Scrie(1, 1, QStringLiteral("ROMANIA"));
        g.Scrie(3, 2, QStringLiteral("LISTA persoanelor"));
        g.Uneste({3, 2, 3, 7});
        g.Aliniaza({3, 2, 3, 7}, {Raport::Orizontal::Centru, Raport::Vertical::Centru});
        g.SeteazaFont({3, 2, 3, 7}, {QString(), 14, true, {}, {}});
        g.Incadreaza({5, 1, 5, 7}, true);
        g.Bordura({5, 1, 5, 7}, Raport::Margine::Jos, Raport::Linie::Groasa);
        for (int r = 6; r < 16; ++r) {
            g.Scrie(r, 1, QString::number(r - 5));
            // As a list writes them from the engine's UTF-8, marks included.
            g.ScriePiese(r, 4, {QUtf8StringView("\xc8\x98TEF\xc4\x82NESCU"), u" ", QString::number(r)});
            g.ScriePiese(r, 7, {QUtf8StringView("Br\xc4\x83ne\xc8\x99ti"), u", str. ", QLatin1StringView("G\xe2rii")});
            g.Bordura({r, 1, r, 7}, Raport::Margine::Jos, r == 15 ? Raport::Linie::Groasa : Raport::Linie::Subtire);
        }
        f.Grid->Arata(g);
        captura(f, "frmRapoarte");
    }
    {
        // The delivered template's page, and that page as a pdf to look at.
        QDir(dir.path()).mkpath(QStringLiteral("Rapoarte"));
        QFile::copy(QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("Rapoarte/Anexa3.xml")),
                    QDir(dir.path()).filePath(QStringLiteral("Rapoarte/Anexa3.xml")));
        frmRapoarte2 f(program, m);
        f.resize(1280, 800);
        f.cmdOK_Click();
        captura(f, "frmRapoarte2");
        Raport::Grila pagina = f.GrilaAfisata();
        pagina.pagina.portret = false;
        try {
            Raport::ScriePdf(pagina, iesire.filePath(QStringLiteral("Anexa3.pdf")));
        } catch (const Eroare& e) {
            std::fprintf(stderr, "%s\n", qPrintable(e.text()));
            ++erori;
        }
    }
    {
        // The requests in payment by name, and the same page as a pdf to look at.
        frmBorderou f(program, m);
        f.resize(1280, 800);
        f.cboTipRaport->setCurrentIndex(1);
        f.cboTipAloc->setCurrentIndex(0);
        f.cboOrd[0]->setCurrentIndex(2);
        f.cmdOK_Click();
        captura(f, "frmBorderou");
        try {
            Raport::ScriePdf(f.GrilaAfisata(), iesire.filePath(QStringLiteral("Borderou.pdf")));
        } catch (const Eroare& e) {
            std::fprintf(stderr, "%s\n", qPrintable(e.text()));
            ++erori;
        }
    }
    {
        frmSate f(*db, m);
        captura(f, "frmSate");
    }
    {
        frmMotive f(*db, m);
        captura(f, "frmMotive");
    }
    {
        frmDatePrimarie2 f(*db, m);
        captura(f, "frmDatePrimarie2");
    }
    {
        frmChLunaAn f(program, m);
        captura(f, "frmChLunaAn");
    }
    {
        frmBaremBun f(*db, m);
        captura(f, "frmBaremBun");
    }
    {
        frmISR f(*db, m);
        captura(f, "frmISR");
    }
    {
        frmMentenanta f(program, m);
        captura(f, "frmMentenanta");
    }
    {
        frmGenerareAn f(program, m);
        captura(f, "frmGenerareAn");
    }
    editor.reject();
    return erori == 0 ? 0 : 1;
}
