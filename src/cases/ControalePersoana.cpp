#include "cases/ControalePersoana.h"

#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

#include <QRegularExpression>

using namespace ElemPersoana;

namespace {

// The DateGen list of each list combo; none for the text combos.
constexpr std::array<std::optional<TipDateGen>, 17> TipLista = {
    TipDateGen::Rudenie,          // cboRudenie
    TipDateGen::ActIdentitate,    // cboTipAct
    TipDateGen::Cetatenie,        // cboCetatenie
    TipDateGen::Resedinta,        // cboResedinta
    TipDateGen::StareaCivila,     // cboStCivila
    TipDateGen::SitScolara,       // cboStudii
    TipDateGen::Ocupatie,         // cboOcupatie
    TipDateGen::AsigurariSociale, // cboDrAsSociala
    TipDateGen::StareMembru,      // cboStareMembru
    std::nullopt,                 // cboEliberat: Politii
    std::nullopt,                 // cboUScolara: Scoli
    TipDateGen::Motiv,            // cboMotivID
    TipDateGen::SitScolaraElev,   // cboSituatieScolara
    std::nullopt,                 // cboLocScoala: LocScolare
    TipDateGen::Incalzire,        // cboTipIncalzTrecut
    std::nullopt,                 // cboMotiv
    TipDateGen::TipValuta,        // cboTipValuta
};

} // namespace

bool ComboText(int element) {
    return element == cboEliberat || element == cboUScolara || element == cboLocScoala || element == cboMotiv;
}

ListePersoana IncarcaListePersoana(BazaDate& db) {
    ListePersoana l;
    {
        std::vector<TipDateGen> tipuri{TipDateGen::TipAct};
        for (const auto& t : TipLista)
            if (t) tipuri.push_back(*t);
        auto liste = ListeDateGen(db, tipuri);
        l.TipuriAdeverinte = Alegeri(liste[TipDateGen::TipAct]);
        for (size_t i = 0; i < TipLista.size(); ++i)
            if (TipLista[i]) l.cboMembru[i] = Alegeri(liste[*TipLista[i]]);
    }
    Interogare q(db, QStringLiteral("SELECT 9 AS Element, PolitiaID AS ID, Denumire FROM Politii "
                                    "UNION ALL SELECT 10, ScoalaID, Denumire FROM Scoli "
                                    "UNION ALL SELECT 13, LocScolaraID, Denumire FROM LocScolare "
                                    "ORDER BY 1, 3, 2"));
    q.Executa();
    while (q.Urmator()) {
        const QString text = q.Valoare(2).toString();
        if (!text.trimmed().isEmpty()) l.cboMembru[size_t(q.Intreg(0))].push_back({q.Intreg(1), text});
    }
    l.cboMembru[cboMotiv].push_back({0, QStringLiteral("implinirea varstei de 18 ani")});
    return l;
}

QStringList CnpDupaInceput(BazaDate& db, const QString& inceput, int limita) {
    const QString t = inceput.trimmed();
    QString conditie;
    QVariantList valori;
    // Digits make a range that the index on CNP serves; anything else can't begin a stored code
    // the clerk would want, but is still looked for literally.
    static const QRegularExpression cifre(QStringLiteral("^[0-9]*$"));
    if (cifre.match(t).hasMatch()) {
        if (!t.isEmpty()) {
            QString sus = t;
            while (sus.endsWith(QLatin1Char('9')))
                sus.chop(1);
            conditie = QStringLiteral("WHERE CNP >= ?");
            valori << t;
            if (!sus.isEmpty()) {
                sus[sus.size() - 1] = QChar(sus.back().unicode() + 1);
                conditie += QStringLiteral(" AND CNP < ?");
                valori << sus;
            }
        } else {
            conditie = QStringLiteral("WHERE CNP IS NOT NULL");
        }
    } else {
        QString model = t;
        model.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        model.replace(QLatin1Char('%'), QStringLiteral("\\%"));
        model.replace(QLatin1Char('_'), QStringLiteral("\\_"));
        conditie = QStringLiteral("WHERE CNP LIKE ? ESCAPE '\\'");
        valori << model + QLatin1Char('%');
    }
    Interogare q(db, QStringLiteral("SELECT DISTINCT CNP FROM Membrii %1 ORDER BY CNP LIMIT ?").arg(conditie));
    for (const QVariant& v : valori)
        q.Leaga(v);
    q.Leaga(qMax(limita, 0)).Executa();
    QStringList r;
    while (q.Urmator()) {
        const QString cnp = q.Valoare(0).toString();
        if (!cnp.isEmpty()) r << cnp;
    }
    return r;
}

const QStringList& ColoaneAdeverinte() {
    static const QStringList c{QStringLiteral("Tip Adeverinta"), QStringLiteral("Nr Adev"),
                               QStringLiteral("Data Adev"),      QStringLiteral("Data Dep"),
                               QStringLiteral("Data Exp"),       QStringLiteral("AdvCurenta"),
                               QStringLiteral("TipAdeverinta")};
    return c;
}

QString DataAdeverintaGrid(const QDate& d) {
    if (!d.isValid()) return {};
    return QStringLiteral("%1-%2-%3")
        .arg(d.day(), 2, 10, QLatin1Char('0'))
        .arg(LuniAn()[d.month() - 1].toLower())
        .arg(d.year(), 4, 10, QLatin1Char('0'));
}

std::array<QString, 7> TexteAdeverinta(const AdeverintaMembru& a, const std::vector<AlegereCombo>& tipuri) {
    std::array<QString, 7> r;
    for (const AlegereCombo& t : tipuri)
        if (t.id == a.TipAdeverinta) r[ColAdev::TipAdeverinta] = t.text;
    r[ColAdev::NrAdev] = a.NrAdev;
    r[ColAdev::DataAdev] = DataAdeverintaGrid(a.DataAdeverinta);
    r[ColAdev::DataDep] = DataAdeverintaGrid(a.DataDepunerii);
    r[ColAdev::DataExp] = DataAdeverintaGrid(a.DataExpAdev);
    r[ColAdev::AdvCurenta] = QString::number(a.AdvCurenta);
    r[ColAdev::TipID] = QString::number(a.TipAdeverinta);
    return r;
}

QString CasetaSumaInvalida(const DatePersoana& d) {
    for (int i : {txtVenit, txtSuma}) {
        const QString& text = d.txtMembru[size_t(i)];
        if (text.trimmed().isEmpty()) continue;
        try {
            SumaText(text);
        } catch (const Eroare&) {
            return QStringLiteral("txtMembru_%1").arg(i);
        }
    }
    return {};
}

std::vector<qint64> CheiMembrii(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT MembruID FROM Membrii ORDER BY MembruID"));
    q.Executa();
    std::vector<qint64> chei;
    while (q.Urmator())
        chei.push_back(q.Intreg(0));
    return chei;
}

std::vector<RandMembrii> RanduriMembrii(BazaDate& db, qint64 primul, qint64 ultimul) {
    Interogare q(db, QStringLiteral("SELECT M.MembruID, M.Nume, M.Prenume, M.CNP, T.DenScurt, M.SerieBI, M.NrBI "
                                    "FROM Membrii M LEFT JOIN TipuriActe T ON T.TipActID = M.TipAct "
                                    "WHERE M.MembruID >= ? AND M.MembruID <= ? ORDER BY M.MembruID"));
    q.Leaga(primul).Leaga(ultimul).Executa();
    std::vector<RandMembrii> randuri;
    while (q.Urmator())
        randuri.push_back({q.Intreg(0), q.Valoare(1).toString(), q.Valoare(2).toString(), q.Valoare(3).toString(),
                           q.Valoare(4).toString(), q.Valoare(5).toString(), q.Valoare(6).toString()});
    return randuri;
}
