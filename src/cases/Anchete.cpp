#include "cases/Anchete.h"

#include "cases/Istoric.h"
#include "cases/RandDisponibil.h"
#include "base/Eroare.h"
#include "base/Texte.h"
#include "cases/Cnp.h"
#include "base/Mesaje.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"
#include "store/Sql.h"

#include <QVariant>
#include <cmath>
#include <limits>

namespace {

const QString Stearsa =
    QStringLiteral("Aceasta Ancheta a fost stearsa de alt utilizator. Modificarile dvs. nu pot avea "
                   "loc. Aceasta fereastra se va inchide!");
const QString RandNegasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!");

// A usable database, an inquiry chosen (else `faraSelectie`) and still there.
bool AnchetaDisponibila(BazaDate& db, Mesaje& m, qint64 anchetaID, const QString& faraSelectie) {
    return RandDisponibil(db, m, anchetaID, faraSelectie, QStringLiteral("Anchete"), QStringLiteral("AnchetaID"),
                          RandNegasit);
}

QVariant textSauNul(const QString& s) {
    return s.isEmpty() ? QVariant() : QVariant(s);
}
QVariant dataSauNul(const QDate& d) {
    return d.isValid() ? QVariant(d) : QVariant();
}
QVariant optionalSauNul(const std::optional<int>& v) {
    return v ? QVariant(qint64(*v)) : QVariant();
}

// The typed number as its field holds it: NrCamere is a whole number (the nearest, halves to even,
// as the old run-time stored a number in an Integer field), SuprUtila a single-precision one.
QVariant numarCamere(const QString& text) {
    const double v = std::nearbyint(Val(text));
    if (!(std::fabs(v) <= double(std::numeric_limits<qint32>::max())))
        throw Eroare(QStringLiteral("Numarul de camere este prea mare: %1").arg(text));
    return QVariant(qint64(v));
}

QVariant suprafata(const QString& text) {
    const double v = Val(text);
    if (!(std::fabs(v) <= double(std::numeric_limits<float>::max())))
        throw Eroare(QStringLiteral("Suprafata este prea mare: %1").arg(text));
    return QVariant(v);
}

std::optional<int> optionalDin(const QVariant& v) {
    return v.isNull() ? std::nullopt : std::optional<int>(v.toInt());
}

QString textDin(const QVariant& v) {
    return v.isNull() ? QString() : v.toString();
}

} // namespace

QDate Anchete::SaseLuni(const QDate& d) {
    if (!d.isValid()) return {};
    return QDate(d.year(), d.month(), 1).addMonths(6).addDays(d.day() - 1);
}

Expirare Anchete::CalculExpirare(BazaDate& db, qint64 cerereID, const QDate& d, Mesaje& m) {
    Expirare r;
    if (!d.isValid()) return r;
    const QDate l = SaseLuni(d);
    // The earliest coming of age was meant to end the term when no child stays a minor through it.
    // The running value starts at the empty date (30.12.1899) and is only ever replaced by an
    // earlier date, so it never moves, and such a family is treated as ended: that is the result
    // the office relies on.
    const QDate dataZero(1899, 12, 30);
    QDate primulMajorat = dataZero;
    bool copilTotTermenul = false;

    Interogare q(db, QStringLiteral("SELECT M.MembruID, M.CNP FROM Membrii AS M INNER JOIN CereriMembrii AS CM "
                                    "ON M.MembruID = CM.MembruID WHERE CM.CerereID = ? ORDER BY M.MembruID"));
    q.Leaga(cerereID).Executa();
    while (q.Urmator()) {
        ++r.NrMembrii;
        const QDate majorat = DataNasterii(q.Text(QStringLiteral("CNP")), true, &m);
        if (!majorat.isValid()) continue;
        if (majorat > l) {
            copilTotTermenul = true;
            ++r.NrCopii;
        } else if (majorat > d) {
            ++r.NrCopii;
            if (primulMajorat > majorat) primulMajorat = majorat;
        }
    }

    if (copilTotTermenul) {
        r.DataExpirarii = l;
        r.Motiv = QStringLiteral("valabilitate 6 luni");
    } else if (primulMajorat != dataZero) {
        r.DataExpirarii = primulMajorat;
        r.Motiv = QStringLiteral("implinirea varstei de 18 ani");
    } else {
        r.Motiv = QStringLiteral("Cererea este INCETATA!");
        m.Informatie(QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!"));
    }
    return r;
}

VerificareAncheta Anchete::VerificaControale(BazaDate& db, Mesaje& m, const Ancheta& a, ModAncheta mod,
                                             int nrCopiiCerere) {
    VerificareAncheta r;
    if (!VerificaBD(db, m)) return r;
    if (mod == ModAncheta::Modificare) {
        const qint64 n = Sql::RanduriCuCheie(db, QStringLiteral("Anchete"), QStringLiteral("AnchetaID"), a.AnchetaID);
        if (n == 0) {
            m.Informatie(Stearsa);
            r.inchide = true;
            return r;
        }
        if (n > 1) {
            m.Critic(QStringLiteral("Exceptie: AnchetaID multiplu in AddAncheta -> Verifica Controale"));
            return r;
        }
    }
    if (a.NrCopii != nrCopiiCerere)
        m.Avertisment(QStringLiteral("Numarul de copii din Ancheta nu coincide cu numarul de copii din Cerere. "
                                     "Verificati cauza in Cerere!"));

    auto refuz = [&](const QString& text, const char* control) {
        m.Informatie(text);
        r.control = QString::fromLatin1(control);
        return r;
    };
    if (!a.DataAncheta.isValid())
        return refuz(QStringLiteral("Nu puteti salva datele inainte de a Data Ancheta"), "dtpData");
    if (a.NrCopii == 0)
        return refuz(QStringLiteral("Pentru Data Selectata nu mai sunt copii, asa ca ancheta nu are sens! Fie "
                                    "schimbati Data Anchetei, fie Renuntati"),
                     "dtpData");
    if (a.Intocmitor.trimmed().isEmpty())
        return refuz(QStringLiteral("Nu puteti salva datele inainte de a introduce Numele Intocmitorului"),
                     "txtCerere_0");
    if (Val(a.NrCamere) == 0)
        return refuz(QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul de camere"), "txtCerere_1");
    if (Val(a.SuprUtila) == 0)
        return refuz(QStringLiteral("Nu puteti salva datele inainte de a introduce Suprafata"), "txtCerere_2");
    if (!a.TipLocuinta) return refuz(QStringLiteral("Tipul locuintei incorect. Selectati din lista!"), "cboCerere_0");
    if (!a.RegimJuridic)
        return refuz(QStringLiteral("Regim juridic incorect. Selectati un Regim juridic din lista!"), "cboCerere_1");
    if (!a.TipDetinere)
        return refuz(QStringLiteral("Detine in proprietate incorect. Selectati din lista: 'in proprietate' sau 'in "
                                    "folosinta'!"),
                     "cboCerere_3");
    r.ok = true;
    return r;
}

qint64 Anchete::Salveaza(BazaDate& db, Mesaje& m, Ancheta a, ModAncheta mod) {
    // Computed before the transaction: its message must not wait on the clerk while the write lock is held.
    const Expirare e = CalculExpirare(db, a.CerereID, a.DataAncheta, m);
    a.DataExpirarii = e.DataExpirarii;
    a.Motiv = e.Motiv;
    const QVariant camere = numarCamere(a.NrCamere);
    const QVariant supr = suprafata(a.SuprUtila);

    Tranzactie t(db);
    const bool nou = mod == ModAncheta::Adaugare;
    if (nou) a.AnchetaID = db.CheieNoua(QStringLiteral("Anchete"), QStringLiteral("AnchetaID"));
    Sql::Rand r = {
        {"DataAncheta", dataSauNul(a.DataAncheta)},
        {"Intocmitor", textSauNul(a.Intocmitor)},
        {"DataExpirarii", dataSauNul(a.DataExpirarii)},
        {"Motiv", textSauNul(a.Motiv)},
        {"NrMembrii", qint64(a.NrMembrii)},
        {"NrCopii", qint64(a.NrCopii)},
        {"TipLocuinta", optionalSauNul(a.TipLocuinta)},
        {"RegimJuridic", optionalSauNul(a.RegimJuridic)},
        {"NrCamere", camere},
        {"SuprUtila", supr},
        {"Bunuri", textSauNul(a.Bunuri)},
        {"Igiena", textSauNul(a.Igiena)},
        {"TipLocuire", optionalSauNul(a.TipLocuire)},
        {"TipDetinere", optionalSauNul(a.TipDetinere)},
        {"Teren", textSauNul(a.Teren)},
        {"Cladiri", textSauNul(a.Cladiri)},
        {"Spatii", textSauNul(a.Spatii)},
        {"AlteBunuri", textSauNul(a.AlteBunuri)},
        {"StareSanatate", textSauNul(a.StareSanatate)},
        {"Nevoi", textSauNul(a.Nevoi)},
        {"Aspecte", textSauNul(a.Aspecte)},
    };
    const QString tabela = QStringLiteral("Anchete");
    const std::vector<Schimbare> schimbari =
        nou ? Istoric::Compara(tabela, r, {})
            : Istoric::Diferente(db, tabela, QStringLiteral("AnchetaID"), a.AnchetaID, r);
    if (nou) {
        r.insert(r.begin(), {{QStringLiteral("AnchetaID"), a.AnchetaID}, {QStringLiteral("CerereID"), a.CerereID}});
        Sql::Insereaza(db, tabela, r);
    } else if (Sql::Actualizeaza(db, tabela, r, QStringLiteral("AnchetaID"), a.AnchetaID) != 1) {
        throw Eroare(Stearsa);
    }
    Istoric::ScrieSchimbari(db, a.CerereID, {}, nou ? FelSchimbare::Adaugare : FelSchimbare::Modificare,
                            nou ? QStringLiteral("Ancheta adaugata") : QStringLiteral("Ancheta modificata"), schimbari);
    t.Confirma();
    return a.AnchetaID;
}

std::optional<Ancheta> Anchete::Citeste(BazaDate& db, qint64 anchetaID) {
    Interogare q(db, QStringLiteral("SELECT * FROM Anchete WHERE AnchetaID = ?"));
    q.Leaga(anchetaID);
    if (!q.Exista()) return std::nullopt;
    auto v = [&](const char* camp) { return q.Valoare(QString::fromLatin1(camp)); };
    Ancheta a;
    a.AnchetaID = q.Intreg(QStringLiteral("AnchetaID"));
    a.CerereID = q.Intreg(QStringLiteral("CerereID"));
    a.DataAncheta = q.Data(QStringLiteral("DataAncheta"));
    a.Intocmitor = textDin(v("Intocmitor"));
    a.DataExpirarii = q.Data(QStringLiteral("DataExpirarii"));
    a.Motiv = textDin(v("Motiv"));
    a.NrMembrii = v("NrMembrii").toInt();
    a.NrCopii = v("NrCopii").toInt();
    a.TipLocuinta = optionalDin(v("TipLocuinta"));
    a.RegimJuridic = optionalDin(v("RegimJuridic"));
    a.NrCamere = v("NrCamere").isNull() ? QString() : QString::number(v("NrCamere").toLongLong());
    // A single-precision field: seven significant digits give back what was typed.
    a.SuprUtila = v("SuprUtila").isNull() ? QString() : QString::number(v("SuprUtila").toDouble(), 'g', 7);
    a.Bunuri = textDin(v("Bunuri"));
    a.Igiena = textDin(v("Igiena"));
    a.TipLocuire = optionalDin(v("TipLocuire"));
    a.TipDetinere = optionalDin(v("TipDetinere"));
    a.Teren = textDin(v("Teren"));
    a.Cladiri = textDin(v("Cladiri"));
    a.Spatii = textDin(v("Spatii"));
    a.AlteBunuri = textDin(v("AlteBunuri"));
    a.StareSanatate = textDin(v("StareSanatate"));
    a.Nevoi = textDin(v("Nevoi"));
    a.Aspecte = textDin(v("Aspecte"));
    return a;
}

std::vector<ElementDateGen> Anchete::ListaDateGen(BazaDate& db, TipDateGen tip) {
    std::vector<ElementDateGen> r;
    for (const RandDateGen& e : ::ListaDateGen(db, tip))
        r.push_back({int(e.DataID), e.Continut.toLower()});
    return r;
}

std::vector<RandAncheta> Anchete::ListaAnchete(BazaDate& db, qint64 cerereID) {
    // The two engines put NULL at opposite ends of a descending order; an inquiry without a date
    // goes last on both.
    Interogare q(db, QStringLiteral("SELECT AnchetaID, DataAncheta, NrMembrii, NrCopii, DataExpirarii, Motiv "
                                    "FROM Anchete WHERE CerereID = ? "
                                    "ORDER BY CASE WHEN DataAncheta IS NULL THEN 1 ELSE 0 END, DataAncheta DESC, "
                                    "AnchetaID DESC"));
    q.Leaga(cerereID).Executa();
    std::vector<RandAncheta> r;
    while (q.Urmator())
        r.push_back({q.Intreg(QStringLiteral("AnchetaID")), FormatData(q.Data(QStringLiteral("DataAncheta"))),
                     textDin(q.Valoare(QStringLiteral("NrMembrii"))), textDin(q.Valoare(QStringLiteral("NrCopii"))),
                     FormatData(q.Data(QStringLiteral("DataExpirarii"))), textDin(q.Valoare(QStringLiteral("Motiv")))});
    return r;
}

QString Anchete::TitluAnchete(const QString& solicitant, size_t randuri) {
    return randuri == 0 ? QString() : QStringLiteral("Anchetele lui ") + solicitant + QLatin1Char('.');
}

bool Anchete::PoateAdauga(BazaDate& db, Mesaje& m, qint64 cerereID) {
    return RandDisponibil(db, m, cerereID, QStringLiteral("Selectati o cerere"), QStringLiteral("Cereri"),
                          QStringLiteral("CerereID"),
                          QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta"));
}

bool Anchete::PoateModifica(BazaDate& db, Mesaje& m, qint64 anchetaID) {
    return AnchetaDisponibila(db, m, anchetaID, QStringLiteral("Selectati o ancheta"));
}

QString Anchete::IntrebareStergere(const QString& textRand) {
    return QStringLiteral("Sigur doriti sa stergeti ancheta ") + textRand + QStringLiteral(" ?");
}

bool Anchete::Sterge(BazaDate& db, Mesaje& m, qint64 anchetaID, const QString& textRand) {
    if (!AnchetaDisponibila(db, m, anchetaID, QStringLiteral("Selectati o ancheta!"))) return false;
    if (!m.Intrebare(IntrebareStergere(textRand))) return false;
    Tranzactie t(db);
    Istoric::StergereRand(db, QStringLiteral("Anchete"), QStringLiteral("AnchetaID"), anchetaID,
                          QStringLiteral("Ancheta din %1 stearsa"), QStringLiteral("DataAncheta"));
    Interogare d(db, QStringLiteral("DELETE FROM Anchete WHERE AnchetaID = ?"));
    d.Leaga(anchetaID).Executa();
    t.Confirma();
    return d.RanduriAfectate() > 0;
}
