#include "cli/ComenziCli.h"

#include "base/Eroare.h"
#include "cli/ArgumenteCli.h"
#include "maintenance/Copii.h"
#include "store/BazaDate.h"
#include "store/CopieInainte.h"

#include <QDir>

using namespace Cli;

namespace {

const QString Utilizare =
    QStringLiteral("utilizare: ferolanta-cli {init|upgrade|demo --cereri N [--seed S]|cuantum ID [--luna L --an A]|"
                   "document {dispozitie|fisa|declaratie} ID [--sablon FISIER] [--out FISIER] [--data ZZ.LL.AAAA]|"
                   "web {cerere|cerere_1a|ancheta} ID [--out DIR]|"
                   "cauta [--cnp P] [--nume P] [--prenume P] [--nr-cerere N] [--stari ID,ID,...] [--primele N]|"
                   "raport {lista|N --out FISIER [--foaie] [--luna L --an A] [--azi ZZ.LL.AAAA] [--ord1 I] [--ord2 I] "
                   "[--tip-cerere 0|1|2] [--membri] [--nr-luni TEXT] [--stari ID,ID,...] [--nr-bord TEXT] "
                   "[--data-bord ZZ.LL.AAAA]}|"
                   "borderou --raport I --aloc J --out FISIER [--foaie] [--ord1 I] [--ord2 I] [--luna L --an A]|"
                   "bas {a23|a25} --out FISIER.ods|isr VALOARE|istoric NR|"
                   "mentenanta {datastare [--suprascrie]|stare|rudenie|acte|bife|cereri2014 [--data-veche]} [--da] "
                   "[--luna L --an A]|copie|restaurare COPIE|import {FISIER.mdb|FOLDER}} "
                   "[--dir DIR] "
                   "[--db postgresql://...]");

} // namespace

namespace {

// A tool that rewrites many rows is preceded by a copy of the database; the copy's check and the
// removal of older copies wait until the tool has run, so that it does not wait for them.
class CopiiInainte {
public:
    explicit CopiiInainte(QTextStream& err) : err_(err) {
        CopieInainte::Seteaza([this](BazaDate& db, const QString& motiv) {
            try {
                const QString f = Copii::Copiaza(db.locatie(), QDateTime::currentDateTime());
                facute_ << f;
                err_ << "Copie de siguranta " << motiv << ": " << QDir::toNativeSeparators(f) << Qt::endl;
            } catch (const Eroare& e) {
                err_ << e.text() << Qt::endl;
            }
        });
    }
    ~CopiiInainte() {
        CopieInainte::Seteaza({});
        for (const QString& f : facute_) {
            try {
                Copii::VerificaSiRoteste(f);
            } catch (const Eroare& e) {
                err_ << e.text() << Qt::endl;
            }
        }
    }
    CopiiInainte(const CopiiInainte&) = delete;
    CopiiInainte& operator=(const CopiiInainte&) = delete;

private:
    QTextStream& err_;
    QStringList facute_;
};

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
    p.addOption({QStringLiteral("cnp"), QStringLiteral("inceputul CNP-ului titularului"), QStringLiteral("P")});
    p.addOption({QStringLiteral("nume"), QStringLiteral("inceputul numelui titularului"), QStringLiteral("P")});
    p.addOption({QStringLiteral("prenume"), QStringLiteral("inceputul prenumelui titularului"), QStringLiteral("P")});
    p.addOption({QStringLiteral("nr-cerere"), QStringLiteral("numarul cererii"), QStringLiteral("N")});
    p.addOption({QStringLiteral("stari"), QStringLiteral("starile cererilor"), QStringLiteral("ID,ID")});
    p.addOption({QStringLiteral("primele"), QStringLiteral("cate randuri se scriu"), QStringLiteral("N")});
    p.addOption({QStringLiteral("foaie"), QStringLiteral("raportul ca la export")});
    p.addOption({QStringLiteral("azi"), QStringLiteral("data de azi a raportului"), QStringLiteral("ZZ.LL.AAAA")});
    p.addOption({QStringLiteral("ord1"), QStringLiteral("prima ordonare"), QStringLiteral("I")});
    p.addOption({QStringLiteral("ord2"), QStringLiteral("a doua ordonare"), QStringLiteral("I")});
    p.addOption({QStringLiteral("tip-cerere"), QStringLiteral("felul cererilor"), QStringLiteral("0|1|2")});
    p.addOption({QStringLiteral("membri"), QStringLiteral("titular + membrii")});
    p.addOption({QStringLiteral("nr-luni"), QStringLiteral("numarul de luni"), QStringLiteral("TEXT")});
    p.addOption({QStringLiteral("nr-bord"), QStringLiteral("numarul borderoului"), QStringLiteral("TEXT")});
    p.addOption({QStringLiteral("data-bord"), QStringLiteral("data borderoului"), QStringLiteral("ZZ.LL.AAAA")});
    p.addOption({QStringLiteral("raport"), QStringLiteral("felul cererilor din borderou"), QStringLiteral("I")});
    p.addOption({QStringLiteral("aloc"), QStringLiteral("felul alocatiei din borderou"), QStringLiteral("J")});
    p.addOption({QStringLiteral("da"), QStringLiteral("mentenanta: raspunde Da si face modificarea")});
    p.addOption({QStringLiteral("suprascrie"), QStringLiteral("mentenanta datastare: si cererile cu DataStare")});
    p.addOption({QStringLiteral("data-veche"), QStringLiteral("mentenanta cereri2014: pastreaza DataCerere")});
    p.addPositionalArgument(QStringLiteral("comanda"),
                            QStringLiteral("init, upgrade, demo, cuantum, document, web, cauta, raport, borderou, bas, "
                                           "isr, istoric, mentenanta, copie, restaurare, import"));
    try {
        if (!p.parse(argumente)) throw EroareArgumente{p.errorText()};
        const QStringList poz = p.positionalArguments();
        if (poz.isEmpty()) throw EroareArgumente{QStringLiteral("lipseste comanda")};
        const QString comanda = poz.first();
        const bool cuCerere = comanda == QLatin1String("cuantum");
        const bool cuDocument = comanda == QLatin1String("document");
        const bool cuWeb = comanda == QLatin1String("web");
        const bool cuRaport = comanda == QLatin1String("raport");
        const bool cuBorderou = comanda == QLatin1String("borderou");
        const bool cuBas = comanda == QLatin1String("bas");
        const bool cuIsr = comanda == QLatin1String("isr");
        const bool cuIstoric = comanda == QLatin1String("istoric");
        const bool cuMentenanta = comanda == QLatin1String("mentenanta");
        const bool cuRestaurare = comanda == QLatin1String("restaurare");
        const bool cuImport = comanda == QLatin1String("import");
        if (cuImport && poz.size() == 1)
            throw EroareArgumente{QStringLiteral("lipseste fisierul .mdb sau folderul cu fisiere .csv de importat")};
        if (cuRestaurare && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste copia de pus inapoi")};
        if (cuMentenanta && poz.size() == 1)
            throw EroareArgumente{
                QStringLiteral("lipseste unealta: datastare, stare, rudenie, acte, bife sau cereri2014")};
        if (cuRaport && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste raportul: lista sau indexul")};
        if (cuBas && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste formularul: a23 sau a25")};
        if (cuIsr && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste valoarea ISR")};
        if (cuIstoric && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste numarul cererii")};
        if (cuCerere && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste ID-ul cererii")};
        if (cuDocument && poz.size() == 1) throw EroareArgumente{QStringLiteral("lipseste felul documentului")};
        if (cuDocument && poz.size() == 2) throw EroareArgumente{QStringLiteral("lipseste ID-ul documentului")};
        if (cuWeb && poz.size() == 1)
            throw EroareArgumente{QStringLiteral("lipseste documentul: cerere, cerere_1a sau ancheta")};
        if (cuWeb && poz.size() == 2) throw EroareArgumente{QStringLiteral("lipseste ID-ul cererii")};
        const bool cuArgument =
            cuCerere || cuRaport || cuBas || cuIsr || cuIstoric || cuMentenanta || cuRestaurare || cuImport;
        if (poz.size() != (cuDocument || cuWeb ? 3 : cuArgument ? 2 : 1))
            throw EroareArgumente{QStringLiteral("prea multe argumente")};
        if (!cuDocument && (p.isSet(QStringLiteral("sablon")) || p.isSet(QStringLiteral("data"))))
            throw EroareArgumente{QStringLiteral("--sablon si --data sunt doar pentru document")};
        if (!cuDocument && !cuWeb && !cuRaport && !cuBorderou && !cuBas && p.isSet(QStringLiteral("out")))
            throw EroareArgumente{QStringLiteral("--out este doar pentru document, web, raport, borderou si bas")};
        if (comanda != QLatin1String("demo") && (p.isSet(QStringLiteral("cereri")) || p.isSet(QStringLiteral("seed"))))
            throw EroareArgumente{QStringLiteral("--cereri si --seed sunt doar pentru demo")};
        if (!cuCerere && !cuRaport && !cuBorderou && !cuMentenanta &&
            (p.isSet(QStringLiteral("luna")) || p.isSet(QStringLiteral("an"))))
            throw EroareArgumente{
                QStringLiteral("--luna si --an sunt doar pentru cuantum, raport, borderou si mentenanta")};
        if (!cuMentenanta)
            for (const char* o : {"da", "suprascrie", "data-veche"})
                if (p.isSet(QLatin1String(o)))
                    throw EroareArgumente{QStringLiteral("--%1 este doar pentru mentenanta").arg(QLatin1String(o))};
        if (comanda != QLatin1String("cauta"))
            for (const char* o : {"cnp", "nume", "prenume", "nr-cerere", "primele"})
                if (p.isSet(QLatin1String(o)))
                    throw EroareArgumente{QStringLiteral("--%1 este doar pentru cauta").arg(QLatin1String(o))};
        if (comanda != QLatin1String("cauta") && !cuRaport && p.isSet(QStringLiteral("stari")))
            throw EroareArgumente{QStringLiteral("--stari este doar pentru cauta si raport")};
        if (!cuRaport)
            for (const char* o : {"azi", "tip-cerere", "membri", "nr-luni", "nr-bord", "data-bord"})
                if (p.isSet(QLatin1String(o)))
                    throw EroareArgumente{QStringLiteral("--%1 este doar pentru raport").arg(QLatin1String(o))};
        if (!cuRaport && !cuBorderou)
            for (const char* o : {"foaie", "ord1", "ord2"})
                if (p.isSet(QLatin1String(o)))
                    throw EroareArgumente{
                        QStringLiteral("--%1 este doar pentru raport si borderou").arg(QLatin1String(o))};
        if (!cuBorderou)
            for (const char* o : {"raport", "aloc"})
                if (p.isSet(QLatin1String(o)))
                    throw EroareArgumente{QStringLiteral("--%1 este doar pentru borderou").arg(QLatin1String(o))};
        const CopiiInainte copii(err);
        if (comanda == QLatin1String("init")) return ComandaInit(p, out, err);
        if (comanda == QLatin1String("cauta")) return ComandaCauta(p, out, err);
        if (comanda == QLatin1String("upgrade")) return ComandaUpgrade(p, out, err);
        if (comanda == QLatin1String("demo")) return ComandaDemo(p, out, err);
        if (cuCerere) return ComandaCuantum(p, poz[1], out, err);
        if (cuDocument) return ComandaDocument(p, poz[1], poz[2], out, err);
        if (cuWeb) return ComandaWeb(p, poz[1], poz[2], out, err);
        if (cuRaport) return ComandaRaport(p, poz[1], out);
        if (cuBorderou) return ComandaBorderou(p, out);
        if (cuBas) return ComandaBas(p, poz[1], out);
        if (cuIsr) return ComandaIsr(p, poz[1], out);
        if (cuIstoric) return ComandaIstoric(p, poz[1], out);
        if (cuMentenanta) return ComandaMentenanta(p, poz[1], out);
        if (comanda == QLatin1String("copie")) return ComandaCopie(p, out);
        if (cuRestaurare) return ComandaRestaurare(p, poz[1], out);
        if (cuImport) return ComandaImport(p, poz[1], out);
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
