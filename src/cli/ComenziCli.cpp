#include "cli/ComenziCli.h"

#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"
#include "documents/Documente.h"
#include "documents/web/PunteWeb.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Foldere.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "base/Val.h"
#include "store/ActualizareBD.h"
#include "store/BazaDate.h"
#include "store/Sql.h"
#include "store/DateLivrate.h"
#include "maintenance/Demo.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <limits>

namespace {

const QString Utilizare =
    QStringLiteral("utilizare: ferolanta-cli {init|upgrade|demo --cereri N [--seed S]|cuantum ID [--luna L --an A]|"
                   "document {dispozitie|fisa|declaratie} ID [--sablon FISIER] [--out FISIER] [--data ZZ.LL.AAAA]|"
                   "web {cerere|cerere_1a|ancheta} ID [--out DIR]} [--dir DIR] "
                   "[--db postgresql://...]");

struct EroareArgumente {
    QString text;
};

// Messages of the core go to the same streams as the tool's own output.
class MesajeFlux : public Mesaje {
public:
    MesajeFlux(QTextStream& out, QTextStream& err) : out_(out), err_(err) {}
    void Informatie(const QString& text, const QString&) override { out_ << text << Qt::endl; }
    void Avertisment(const QString& text, const QString&) override { err_ << text << Qt::endl; }
    void Critic(const QString& text, const QString&) override { err_ << text << Qt::endl; }
    bool Intrebare(const QString& text, const QString&, bool implicitDa) override {
        err_ << text << Qt::endl;
        return implicitDa;
    }
    QString Intrare(const QString& text, const QString&, const QString& implicit) override {
        err_ << text << Qt::endl;
        return implicit;
    }

private:
    QTextStream& out_;
    QTextStream& err_;
};

LocatieBD locatie(const QCommandLineParser& p) {
    LocatieBD loc;
    loc.caleBD =
        QDir(p.isSet(QStringLiteral("dir")) ? p.value(QStringLiteral("dir")) : QDir::currentPath()).absolutePath();
    loc.url = p.value(QStringLiteral("db"));
    return loc;
}

qint64 numarIntre(const QString& text, qint64 minim, qint64 maxim, const QString& ce) {
    bool ok = false;
    const qint64 v = text.toLongLong(&ok);
    if (!ok || v < minim || v > maxim)
        throw EroareArgumente{QStringLiteral("%1 cere un numar intreg intre %2 si %3").arg(ce).arg(minim).arg(maxim)};
    return v;
}

qint64 optiuneIntre(const QCommandLineParser& p, const QString& optiune, qint64 minim, qint64 maxim,
                    std::optional<qint64> implicit) {
    if (!p.isSet(optiune)) {
        if (!implicit) throw EroareArgumente{QStringLiteral("lipseste --%1").arg(optiune)};
        return *implicit;
    }
    return numarIntre(p.value(optiune), minim, maxim, QStringLiteral("--") + optiune);
}

int init(const QCommandLineParser& p, QTextStream& out, QTextStream& err) {
    MesajeFlux m(out, err);
    const LocatieBD loc = locatie(p);
    DateLivrate::Initializeaza(loc, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")), m);
    out << "Baza de date a fost creata: " << loc.Descriere() << Qt::endl;
    return 0;
}

int upgrade(const QCommandLineParser& p, QTextStream& out, QTextStream& err) {
    MesajeFlux m(out, err);
    const LocatieBD loc = locatie(p);
    auto db = BazaDate::Deschide(loc);
    const RezultatActualizare r =
        ActualizareBD(*db, loc.caleBD, m, [&](const QString& linie) { out << linie << Qt::endl; });
    return r.Reusit() ? 0 : 1;
}

int demo(const QCommandLineParser& p, QTextStream& out, QTextStream&) {
    Demo::Optiuni o;
    o.cereri = int(optiuneIntre(p, QStringLiteral("cereri"), 0, Demo::MaximCereri, std::nullopt));
    o.samanta = quint64(optiuneIntre(p, QStringLiteral("seed"), 0, std::numeric_limits<qint64>::max(), 1));
    auto db = BazaDate::Deschide(locatie(p));
    QElapsedTimer ceas;
    ceas.start();
    Demo::Genereaza(*db, o, [&](int facute, int total) {
        out << facute << " / " << total << " cereri (" << QString::number(ceas.elapsed() / 1000.0, 'f', 1) << " s)"
            << Qt::endl;
    });
    out << o.cereri << " cereri adaugate in " << QString::number(ceas.elapsed() / 1000.0, 'f', 1) << " s" << Qt::endl;
    return 0;
}

// The amount of one stored request, read as the request editor reads it, in a working month:
// the one given, else the settings' month, else the present month.
int cuantum(const QCommandLineParser& p, const QString& idText, QTextStream& out, QTextStream& err) {
    const qint64 id = numarIntre(idText, 1, std::numeric_limits<qint64>::max(), QStringLiteral("ID-ul cererii"));
    const bool areLuna = p.isSet(QStringLiteral("luna")), areAn = p.isSet(QStringLiteral("an"));
    if (areLuna != areAn) throw EroareArgumente{QStringLiteral("--luna si --an se dau impreuna")};
    const LocatieBD loc = locatie(p);
    int luna = 0, an = 0;
    if (areLuna) {
        luna = int(numarIntre(p.value(QStringLiteral("luna")), 1, 12, QStringLiteral("--luna")));
        an = int(numarIntre(p.value(QStringLiteral("an")), AnLucruMinim, AnLucruMaxim, QStringLiteral("--an")));
    } else if (const QString ini = QDir(loc.caleBD).filePath(Foldere::FisierSetari); QFile::exists(ini)) {
        const Setari s = IncarcaSetari(ini, false);
        luna = s.LunaSetata;
        an = s.AnSetat;
    } else {
        const QDate azi = Ceas::Azi();
        luna = azi.month();
        an = azi.year();
    }

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    const CerereIncarcata c = IncarcaCerere(*db, id, luna, an, m);
    if (!c.Gasita) {
        err << QStringLiteral("Cererea cu ID-ul %1 nu exista in baza de date.").arg(id) << Qt::endl;
        return 1;
    }
    const IntrareCuantum intrare{c.Stare,
                                 int(c.Date.cboCerere[ElemCerere::cboTipCerere].id),
                                 c.Date.dtpData[ElemCerere::dtpDataStare],
                                 c.Date.txtCerere[ElemCerere::txtVenitPeMembru],
                                 luna,
                                 an};
    const RezultatCuantum r = CalculCuantum(intrare, IncarcaParametri(*db), m);
    // With no child counted the editor's box keeps the number it showed.
    const int nrCopii = r.NrCopii ? *r.NrCopii : int(Val(c.Date.txtCerere[ElemCerere::txtNrCopii]));
    out << "NrCopii=" << nrCopii << " Cuantum=" << r.Cuantum.Text() << Qt::endl;
    return 0;
}

// One merged document, written as the print commands write it but not opened: the template
// delivered with the program (or --sablon), the settings of the database folder when it has a
// settings file, and the fixed file name in the current folder (or --out).
int document(const QCommandLineParser& p, const QString& fel, const QString& idText, QTextStream& out,
             QTextStream& err) {
    const bool dispozitie = fel == QLatin1String("dispozitie"), fisa = fel == QLatin1String("fisa");
    if (!dispozitie && !fisa && fel != QLatin1String("declaratie"))
        throw EroareArgumente{QStringLiteral("documentul poate fi dispozitie, fisa sau declaratie, nu %1").arg(fel)};
    const qint64 id = numarIntre(idText, 1, std::numeric_limits<qint64>::max(),
                                 dispozitie ? QStringLiteral("ID-ul dispozitiei") : QStringLiteral("ID-ul cererii"));
    QDate dataFisa;
    if (p.isSet(QStringLiteral("data"))) {
        if (!fisa) throw EroareArgumente{QStringLiteral("--data este doar pentru fisa")};
        dataFisa = QDate::fromString(p.value(QStringLiteral("data")), QStringLiteral("dd.MM.yyyy"));
        if (!dataFisa.isValid()) throw EroareArgumente{QStringLiteral("--data cere o data ZZ.LL.AAAA")};
    }

    const LocatieBD loc = locatie(p);
    Setari setari;
    if (const QString ini = QDir(loc.caleBD).filePath(Foldere::FisierSetari); QFile::exists(ini))
        setari = IncarcaSetari(ini, false);
    OptiuniDocumente o = OptiuniDinSetari(setari, Foldere::FolderLivrat());
    o.DataFisa = dataFisa;
    const QString sablon = p.value(QStringLiteral("sablon"));
    const QString implicit = dispozitie ? Documente::FisierDispozitie
                             : fisa     ? Documente::FisierFisa
                                        : Documente::FisierDeclaratie;
    const QString iesire = QDir::cleanPath(
        QDir::current().absoluteFilePath(p.isSet(QStringLiteral("out")) ? p.value(QStringLiteral("out")) : implicit));

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    const Documente::Rezultat r = dispozitie ? Documente::GenereazaDispozitie(*db, id, o, iesire, m, sablon)
                                  : fisa     ? Documente::GenereazaFisa(*db, id, o, iesire, m, sablon)
                                             : Documente::GenereazaDeclaratie(*db, id, o, iesire, m, sablon);
    switch (r) {
    case Documente::Rezultat::Scris:
        out << "Documentul a fost scris: " << QDir::toNativeSeparators(iesire) << Qt::endl;
        return 0;
    case Documente::Rezultat::FaraSablon:
        err << QStringLiteral("Dispozitia %1 are un tip (Actiune) pentru care nu exista sablon; nu s-a scris nimic.")
                   .arg(id)
            << Qt::endl;
        return 1;
    case Documente::Rezultat::Esuat:
        break;
    }
    return 1;
}

// The data of the web page for one request (0: the blank forms), written beside a copy of the page
// in --out (the current folder by default), and the address that opens it on stdout. The query file
// and the page are the town hall's copies in the database folder when it has them, else the
// delivered ones; the settings file is the database folder's.
int web(const QCommandLineParser& p, const QString& document, const QString& idText, QTextStream& out,
        QTextStream& err) {
    if (document != PunteWeb::DocCerere && document != PunteWeb::DocCerere1a && document != PunteWeb::DocAncheta)
        throw EroareArgumente{QStringLiteral("documentul poate fi cerere, cerere_1a sau ancheta, nu %1").arg(document)};
    const qint64 id =
        numarIntre(idText, 0, std::numeric_limits<qint64>::max(), QStringLiteral("ID-ul cererii (0: formular gol)"));
    const LocatieBD loc = locatie(p);
    Setari setari;
    if (const QString ini = QDir(loc.caleBD).filePath(Foldere::FisierSetari); QFile::exists(ini))
        setari = IncarcaSetari(ini, false);
    auto deLuat = [&](const QString& relativ) {
        const QString local = QDir(loc.caleBD).filePath(relativ);
        return QFileInfo(local).isFile() ? local : QDir(Foldere::FolderLivrat()).filePath(relativ);
    };
    const QString sursaPagina = deLuat(PunteWeb::FolderPagina + QLatin1Char('/') + PunteWeb::Pagina);
    const QString iesire = QDir::cleanPath(QDir::current().absoluteFilePath(
        p.isSet(QStringLiteral("out")) ? p.value(QStringLiteral("out")) : QStringLiteral(".")));
    PunteWeb::MediuWeb mediu;
    mediu.fisierInterogari = deLuat(PunteWeb::FisierInterogari);
    mediu.pagina = QDir(iesire).filePath(PunteWeb::Pagina);
    mediu.folderProgram = loc.caleBD;
    mediu.serverCerere = setari.ServerCerere;
    for (const QString& f : {mediu.fisierInterogari, sursaPagina})
        if (!QFileInfo(f).isFile()) {
            err << QStringLiteral("Fisierul %1 nu exista.").arg(QDir::toNativeSeparators(f)) << Qt::endl;
            return 1;
        }

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    if (id > 0) {
        if (!Sql::RandExista(*db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), id)) {
            err << QStringLiteral("Cererea cu ID-ul %1 nu exista in baza de date.").arg(id) << Qt::endl;
            return 1;
        }
    }

    // A failed command leaves --out as it found it: what it created goes again.
    const bool folderNou = !QFileInfo(iesire).exists();
    const bool paginaNoua = !QFileInfo::exists(mediu.pagina);
    bool reusit = false;
    const auto curata = qScopeGuard([&] {
        if (reusit) return;
        if (paginaNoua) QFile::remove(mediu.pagina);
        if (folderNou) QDir().rmpath(iesire);
    });
    if (!QDir().mkpath(iesire)) {
        err << QStringLiteral("Folderul %1 nu poate fi creat.").arg(QDir::toNativeSeparators(iesire)) << Qt::endl;
        return 1;
    }
    if (QFileInfo(sursaPagina).canonicalFilePath() != QFileInfo(mediu.pagina).canonicalFilePath()) {
        QFile::remove(mediu.pagina);
        if (!QFile::copy(sursaPagina, mediu.pagina)) {
            err << QStringLiteral("Pagina nu a putut fi copiata in %1.").arg(QDir::toNativeSeparators(iesire))
                << Qt::endl;
            return 1;
        }
        // The delivered page is read-only; the copy is overwritten at the next run.
        QFile::setPermissions(mediu.pagina, QFile::permissions(mediu.pagina) | QFileDevice::WriteOwner);
    }
    const auto pagina = PunteWeb::StartCerereWeb(*db, mediu, id, document, false, m);
    if (!pagina) return 1;
    reusit = true;
    out << pagina->adresa.toString() << Qt::endl;
    return 0;
}

} // namespace

int RuleazaCli(const QStringList& argumente, QTextStream& out, QTextStream& err) {
    QCommandLineParser p;
    p.addOption({QStringLiteral("dir"), QStringLiteral("folderul bazei de date"), QStringLiteral("DIR")});
    p.addOption({QStringLiteral("db"), QStringLiteral("conexiune PostgreSQL"), QStringLiteral("URL")});
    p.addOption({QStringLiteral("cereri"), QStringLiteral("numar de cereri"), QStringLiteral("N")});
    p.addOption({QStringLiteral("seed"), QStringLiteral("samanta"), QStringLiteral("S")});
    p.addOption({QStringLiteral("luna"), QStringLiteral("luna de lucru"), QStringLiteral("L")});
    p.addOption({QStringLiteral("an"), QStringLiteral("anul de lucru"), QStringLiteral("A")});
    p.addOption({QStringLiteral("sablon"), QStringLiteral("sablonul documentului"), QStringLiteral("FISIER")});
    p.addOption({QStringLiteral("out"), QStringLiteral("fisierul scris (web: folderul)"), QStringLiteral("FISIER")});
    p.addOption({QStringLiteral("data"), QStringLiteral("data fisei de calcul"), QStringLiteral("ZZ.LL.AAAA")});
    p.addPositionalArgument(QStringLiteral("comanda"), QStringLiteral("init, upgrade, demo, cuantum, document, web"));
    try {
        if (!p.parse(argumente)) throw EroareArgumente{p.errorText()};
        const QStringList poz = p.positionalArguments();
        if (poz.isEmpty()) throw EroareArgumente{QStringLiteral("lipseste comanda")};
        const QString comanda = poz.first();
        const bool cuCerere = comanda == QLatin1String("cuantum");
        const bool cuDocument = comanda == QLatin1String("document");
        const bool cuWeb = comanda == QLatin1String("web");
        if (cuCerere && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste ID-ul cererii")};
        if (cuDocument && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste felul documentului")};
        if (cuDocument && poz.size() == 2) throw EroareArgumente{QStringLiteral("lipseste ID-ul documentului")};
        if (cuWeb && poz.size() == 1)
            throw EroareArgumente{QStringLiteral("lipseste documentul: cerere, cerere_1a sau ancheta")};
        if (cuWeb && poz.size() == 2) throw EroareArgumente{QStringLiteral("lipseste ID-ul cererii")};
        if (poz.size() != (cuDocument || cuWeb ? 3 : cuCerere ? 2 : 1))
            throw EroareArgumente{QStringLiteral("prea multe argumente")};
        if (!cuDocument && (p.isSet(QStringLiteral("sablon")) || p.isSet(QStringLiteral("data"))))
            throw EroareArgumente{QStringLiteral("--sablon si --data sunt doar pentru document")};
        if (!cuDocument && !cuWeb && p.isSet(QStringLiteral("out")))
            throw EroareArgumente{QStringLiteral("--out este doar pentru document si web")};
        if (comanda != QLatin1String("demo") && (p.isSet(QStringLiteral("cereri")) || p.isSet(QStringLiteral("seed"))))
            throw EroareArgumente{QStringLiteral("--cereri si --seed sunt doar pentru demo")};
        if (!cuCerere && (p.isSet(QStringLiteral("luna")) || p.isSet(QStringLiteral("an"))))
            throw EroareArgumente{QStringLiteral("--luna si --an sunt doar pentru cuantum")};
        if (comanda == QLatin1String("init")) return init(p, out, err);
        if (comanda == QLatin1String("upgrade")) return upgrade(p, out, err);
        if (comanda == QLatin1String("demo")) return demo(p, out, err);
        if (cuCerere) return cuantum(p, poz[1], out, err);
        if (cuDocument) return document(p, poz[1], poz[2], out, err);
        if (cuWeb) return web(p, poz[1], poz[2], out, err);
        throw EroareArgumente{QStringLiteral("comanda necunoscuta: %1").arg(comanda)};
    } catch (const EroareArgumente& e) {
        err << e.text << ". " << Utilizare << Qt::endl;
        return 2;
    } catch (const Eroare& e) {
        err << e.text() << Qt::endl;
        return 1;
    } catch (const std::exception& e) {
        err << "Eroare: " << e.what() << Qt::endl;
        return 1;
    }
}
