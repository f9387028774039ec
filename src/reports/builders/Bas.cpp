#include "reports/builders/Bas.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QStringList>

namespace Raport {
namespace {

// The forms report on this year: a request stopped or suspended before it is left out, and A23 tells
// whether a stop fell in it.
constexpr int AnRaportare = 2018;

struct Forma {
    QList<qint64> stari;
    int primulRand;
    int coloane;
};

Forma FormaDe(FormularBas f) {
    return f == FormularBas::A23 ? Forma{{2, 3, 4, 6, 7, 8}, 6, 14} : Forma{{2, 6, 7, 8}, 7, 19};
}

QString Semne(qsizetype n) {
    QStringList s;
    for (qsizetype i = 0; i < n; ++i)
        s << QStringLiteral("?");
    return s.join(QStringLiteral(", "));
}

QString Adresa(const QString& localitate, const QString& strada, const QString& nr, const QString& bloc,
               const QString& sc, const QString& ap) {
    QString a = localitate;
    const auto parte = [&](const char* inainte, const QString& v) {
        if (!v.isEmpty()) a += QLatin1String(inainte) + v;
    };
    parte(", str. ", strada);
    parte(", nr. ", nr);
    parte(", bl. ", bloc);
    parte(", sc. ", sc);
    parte(", ap. ", ap);
    return a;
}

// The member's place in the family, as the form codes it: the partner, a child (the adult relative
// too, as the agency counts it); anyone else without a code.
QString Calitate(const QVariant& rudenie) {
    switch (rudenie.toInt()) {
    case 2:
        return QStringLiteral("S");
    case 3:
    case 4:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
        return QStringLiteral("C");
    default:
        return {};
    }
}

struct Membru {
    QString nume, cnp, calitate;
};

// Every member other than the titular of the requests that list their members (those of more than one
// member), by request, in one reading.
QHash<qint64, QList<Membru>> Membri(BazaDate& db, const QList<qint64>& stari) {
    Interogare q(db, QStringLiteral("SELECT CM.CerereID, CM.RudenieID, M.Nume, M.Prenume, M.CNP "
                                    "FROM CereriMembrii AS CM, Membrii AS M, Cereri AS C "
                                    "WHERE CM.MembruID = M.MembruID AND CM.CerereID = C.CerereID "
                                    "AND C.NrMembrii > 1 AND CM.RudenieID NOT IN (1) AND C.Stare IN (") +
                         Semne(stari.size()) + QStringLiteral(") ORDER BY CM.CerereID, CM.MembruID"));
    for (qint64 s : stari)
        q.Leaga(s);
    q.Executa();
    QHash<qint64, QList<Membru>> r;
    while (q.Urmator())
        r[q.Intreg(0)].append({q.Valoare(2).toString() + QLatin1Char(' ') + q.Valoare(3).toString(),
                               q.Valoare(4).toString(), Calitate(q.Valoare(1))});
    return r;
}

} // namespace

QString NumeBas(FormularBas f) {
    return f == FormularBas::A23 ? QStringLiteral("A23BAS") : QStringLiteral("A25BAS");
}

std::vector<CelulaOds> CeluleBas(BazaDate& db, FormularBas f) {
    const Forma forma = FormaDe(f);
    const bool a23 = f == FormularBas::A23;
    const QHash<qint64, QList<Membru>> membri = a23 ? Membri(db, forma.stari) : QHash<qint64, QList<Membru>>();
    Interogare q(db, QStringLiteral("SELECT C.CerereID, C.Stare, C.DataStare, C.NrCopii, C.Cuantum, "
                                    "C.TipCerere, F.Judet, F.Localitate, F.Strada, F.Nr, F.Bloc, F.Sc, F.Ap, M.Nume, "
                                    "M.Prenume, M.CNP FROM Familii AS F, Cereri AS C, Membrii AS M "
                                    "WHERE F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID AND C.Stare IN (") +
                         Semne(forma.stari.size()) +
                         QStringLiteral(") ORDER BY COALESCE(M.Nume, ''), COALESCE(M.Prenume, ''), C.CerereID"));
    for (qint64 s : forma.stari)
        q.Leaga(s);
    q.Executa();

    std::vector<CelulaOds> celule;
    int rand = forma.primulRand;
    QStringList texte;
    const auto scrieRand = [&] {
        for (int c = 0; c < forma.coloane; ++c)
            celule.push_back({rand, c, texte.value(c), true});
        ++rand;
    };
    qint64 nr = 0;
    while (q.Urmator()) {
        const auto text = [&](const char* camp) { return q.Text(QLatin1String(camp)); };
        const int stare = int(q.Intreg(QStringLiteral("Stare")));
        const QDate dataStare = q.Data(QStringLiteral("DataStare"));
        // A stop of unknown date is kept: its year is not known to fall before the period.
        if ((stare == 3 || stare == 4) && dataStare.isValid() && dataStare.year() < AnRaportare) continue;
        texte = QStringList(forma.coloane);
        texte[0] = QString::number(++nr);
        texte[1] = text("Judet");
        texte[2] = text("Localitate");
        texte[4] = text("Nume") + QLatin1Char(' ') + text("Prenume");
        texte[5] = text("CNP");
        if (!a23) {
            texte[3] = QStringLiteral("ASF");
            for (int c = 6; c <= 18; ++c)
                texte[c] = QStringLiteral("1");
            scrieRand();
            continue;
        }
        texte[3] = Adresa(text("Localitate"), text("Strada"), text("Nr"), text("Bloc"), text("Sc"), text("Ap"));
        texte[6] = QStringLiteral("T");
        if (!q.EsteNul(QStringLiteral("NrCopii"))) texte[7] = QString::number(q.Intreg(QStringLiteral("NrCopii")));
        if (!q.EsteNul(QStringLiteral("Cuantum"))) texte[8] = TextSuma(q.Suma(QStringLiteral("Cuantum")));
        const qint64 tip = q.Intreg(QStringLiteral("TipCerere"));
        texte[9] = tip == 2 ? QStringLiteral("M") : tip == 1 ? QStringLiteral("B") : QString();
        if (stare == 4) {
            texte[12] =
                dataStare.isValid() && dataStare.year() == AnRaportare ? QStringLiteral("1") : QStringLiteral("0");
            texte[13] = FormatData(dataStare);
        }
        scrieRand();
        for (const Membru& mb : membri.value(q.Intreg(QStringLiteral("CerereID")))) {
            texte = QStringList(forma.coloane);
            texte[4] = mb.nume;
            texte[5] = mb.cnp;
            texte[6] = mb.calitate;
            scrieRand();
        }
    }
    return celule;
}

QString SablonBas(FormularBas f, const QString& applicationPath, const QString& folderLivrat) {
    const QString nume = NumeBas(f) + QStringLiteral(".ods");
    for (const QString& folder : {applicationPath, folderLivrat}) {
        const QString sablon = QDir(folder).filePath(QStringLiteral("Acte/") + nume);
        if (!folder.isEmpty() && QFileInfo(sablon).isFile()) return sablon;
    }
    throw Eroare(QStringLiteral("Nu exista fisierul sablon %1. Sunati la 0700-111222!").arg(nume));
}

void ScrieBas(BazaDate& db, FormularBas f, const QString& sablon, const QString& fisier) {
    const std::vector<CelulaOds> celule = CeluleBas(db, f);
    try {
        CompleteazaSablonOds(sablon, fisier, celule);
    } catch (const Eroare& e) {
        // The writer names the file it could not replace; these forms always said it this way.
        if (e.text() == QStringLiteral("Inchideti mai intai %1 !").arg(QFileInfo(fisier).fileName()))
            throw Eroare(QStringLiteral("Inchideti mai intai ods-ul deschis anterior"));
        throw;
    }
}

QString ExportaBas(BazaDate& db, FormularBas f, const QString& applicationPath, const QString& folderLivrat,
                   const QString& folder) {
    const QString sablon = SablonBas(f, applicationPath, folderLivrat);
    const QString fisier = QDir(folder).filePath(NumeBas(f) + QStringLiteral("_ASF.ods"));
    ScrieBas(db, f, sablon, fisier);
    return fisier;
}

} // namespace Raport
