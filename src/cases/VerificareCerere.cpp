#include "cases/SalvareCerere.h"

#include "base/Mesaje.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/Sql.h"

#include <cmath>
#include <limits>

using namespace ElemCerere;

namespace {

QString Control(const char* nume, int index) {
    return QStringLiteral("%1_%2").arg(QLatin1String(nume)).arg(index);
}

// The number of a box as the query compares it: a whole number, or nothing that can match.
std::optional<qint64> NumarCautat(const QString& text) {
    if (text.trimmed().isEmpty()) return std::nullopt;
    const double v = Val(text);
    if (v != std::floor(v) || std::fabs(v) > double(std::numeric_limits<qint32>::max())) return std::nullopt;
    return qint64(v);
}

// Whether another row than the current one holds the number.
bool NumarFolosit(BazaDate& db, const QString& sql, const QString& text, int adaug, qint64 idCurent) {
    const auto numar = NumarCautat(text);
    if (!numar) return false;
    Interogare q(db, sql);
    // On a new request every holder counts; a key is never negative.
    q.Leaga(*numar).Leaga(adaug == 2 ? idCurent : qint64(-1));
    return q.Exista();
}

} // namespace

AvertizareNumar VerificaNrDosar(BazaDate& db, const DateCerere& d, int mod, Mesaje& m) {
    AvertizareNumar r;
    const QString text = d.txtCerere[txtNrDosar].trimmed();
    if (!NumarFolosit(db, QStringLiteral("SELECT FamilieID FROM Familii WHERE NrDosar = ? AND FamilieID <> ?"), text,
                      d.Adaug, d.FamilieID))
        return r;
    m.Informatie(QStringLiteral("Numarul ") + text + QStringLiteral(" a fost alocat altui dosar"));
    r.Avertizat = true;
    if (mod == 1) r.Control = Control("txtCerere", txtNrDosar);
    return r;
}

AvertizareNumar VerificaNrCerere(BazaDate& db, const DateCerere& d, int, Mesaje& m) {
    AvertizareNumar r;
    const QString text = d.txtCerere[txtNrCerere].trimmed();
    if (!NumarFolosit(db, QStringLiteral("SELECT CerereID FROM Cereri WHERE NrCerere = ? AND CerereID <> ?"), text,
                      d.Adaug, d.CerereID))
        return r;
    m.Informatie(QStringLiteral("Numarul ") + text + QStringLiteral(" a fost alocat altei cereri"));
    r.Avertizat = true;
    return r;
}

std::optional<EsecVerificare> VerificaControale(BazaDate& db, const DateCerere& d, const StareCerere& s,
                                                int nrRanduriLista, Mesaje& m) {
    auto esec = [](const char* mesaj, QString control) {
        return std::optional<EsecVerificare>(EsecVerificare{QString::fromUtf8(mesaj), std::move(control), false});
    };

    if (d.Adaug == 2) {
        const qint64 n = Sql::NumarRanduri(db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), d.CerereID);
        if (n == 0)
            return EsecVerificare{
                QStringLiteral("Aceasta cerere a fost stearsa de alt utilizator. Modificarile dvs. nu "
                               "pot avea loc. Aceasta fereastra se va inchide!"),
                {},
                true};
        if (n > 1) m.Avertisment(QStringLiteral("ID multiplu in Verifica Controale"));
    }
    if (d.txtCerere[txtNrDosar].trimmed().isEmpty())
        return esec("Nu puteti salva datele inainte de a introduce Numarul Dosarului",
                    Control("txtCerere", txtNrDosar));
    if (d.txtCerere[txtNrCerere].trimmed().isEmpty())
        return esec("Nu puteti salva datele inainte de a introduce Numarul Cererii", Control("txtCerere", txtNrCerere));
    VerificaNrDosar(db, d, 1, m);
    VerificaNrCerere(db, d, 1, m);
    if (!d.dtpData[dtpDataCerere].isValid())
        return esec("Nu puteti salva datele inainte de a Data cererea", Control("dtpData", dtpDataCerere));
    if (d.txtCerere[txtLocalitate].trimmed().isEmpty())
        return esec("Nu puteti salva datele inainte de a introduce Localitatea", Control("txtCerere", txtLocalitate));
    if (d.txtCerere[txtJudet].trimmed().isEmpty())
        return esec("Nu puteti salva datele inainte de a introduce Judetul", Control("txtCerere", txtJudet));
    if (d.cboCerere[cboReprLegal].id == 0)
        return esec("Selectati din lista: Reprezentant legal!", Control("cboCerere", cboReprLegal));
    if (d.cboCerere[cboModPlata].id == 0)
        return esec("Selectati din lista: Modalitati de plata!", Control("cboCerere", cboModPlata));
    if (d.cboCerere[cboTipCerere].id == 0)
        return esec("Tip cerere incorect. Selectati din lista: famile cu sot/sotie sau famile monoparentala!",
                    Control("cboCerere", cboTipCerere));
    if (d.cboCerere[cboStare].id == 0)
        return esec("Statut incorect. Selectati din lista un statut corect", Control("cboCerere", cboStare));
    if (!d.dtpData[dtpDataStare].isValid())
        return esec("Nu puteti salva datele inainte de a scrie Data Aprobarii/Repunerii/etc",
                    Control("dtpData", dtpDataStare));
    if (nrRanduriLista == 0) return esec("Este obligatorie adaugarea titularului cererii", QStringLiteral("cmdAdd"));

    int titulari = 0, parteneri = 0, copii = 0, altii = 0;
    const qsizetype nrMembri = s.MatriceMembri ? qsizetype(s.MatriceMembri->size()) : 0;
    if (s.MatriceMembri)
        for (const MembruCerere& p : *s.MatriceMembri) {
            if (p.RudenieID == 1)
                ++titulari;
            else if (p.RudenieID == 2)
                ++parteneri;
            else if (p.EsteCopil())
                ++copii;
            else if (p.RudenieID == 4 || p.RudenieID == 5)
                ++altii;
        }
    if (titulari != 1) return esec("Cererea trebuie sa aiba exact un titular. Corectati", QStringLiteral("lvw"));
    if (nrMembri > 1 && parteneri > 1)
        return esec("Cererea nu poate sa aiba mai mult de un partener. Corectati", QStringLiteral("lvw"));
    if (titulari + parteneri + copii + altii != nrRanduriLista)
        return esec("Exceptie Morvante: Nr de persoane din matrice nu corespunde cu numarul de persoane din lista",
                    QStringLiteral("lvw"));
    return std::nullopt;
}
