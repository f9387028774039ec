#include "cases/frmAdeverinte.h"

#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "cases/frmAdAdeverinte.h"
#include "base/Ceas.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "reference/UiListe.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Coloana { ColID = 0, ColNrAdev = 6 };
enum Rol { RolCerere = Qt::UserRole + 1, RolMembru };

const QString FaraSelectie = QStringLiteral("Selectati mai intai o adeverinta");

} // namespace

frmAdeverinte::frmAdeverinte(BazaDate& db, Mesaje& m, QWidget* parinte) : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmAdeverinte"));
    setWindowTitle(QStringLiteral("Adeverinte scolarizare"));
    auto* asezare = new QVBoxLayout(this);
    lvwAdeverinte = new QTreeWidget(this);
    lvwAdeverinte->setObjectName(QStringLiteral("lvwAdeverinte"));
    PregatesteLista(lvwAdeverinte,
                    {QStringLiteral("ID"), QStringLiteral("Nr Cerere"), QStringLiteral("Nume Titular"),
                     QStringLiteral("Nume Scolar"), QStringLiteral("Data nast"), QStringLiteral("Varsta"),
                     QStringLiteral("Nr Adev"), QStringLiteral("Data Dep"), QStringLiteral("Data Adev"),
                     QStringLiteral("Data expirarii"), QStringLiteral("Tip adeverinta")},
                    false);
    asezare->addWidget(lvwAdeverinte);
    asezare->addLayout(
        RandComenziLista(this, lvwAdeverinte, cmdAdd, cmdEdit, cmdDelete, cmdClose,
                         {[this] { cmdAdd_Click(); }, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); }}));

    resize(1000, 460);
    Incarca();
}

void frmAdeverinte::Incarca(qint64 selectat) {
    std::vector<RandAdeverintaScolara> randuri;
    if (!LaMargine(m_, [&] { randuri = Adeverinte::ListaAdeverinteScolare(db_, Ceas::Azi()); })) return;
    lvwAdeverinte->clear();
    QList<QTreeWidgetItem*> iteme;
    iteme.reserve(qsizetype(randuri.size()));
    QTreeWidgetItem* ales = nullptr;
    for (const RandAdeverintaScolara& r : randuri) {
        auto* i = new QTreeWidgetItem(QStringList{QString::number(r.AdevID), r.NrCerere, r.NumeTitular, r.NumeScolar,
                                                  r.DataNast, r.Varsta, r.NrAdev, r.DataDep, r.DataAdev,
                                                  r.DataExpirarii, r.TipAdeverinta});
        i->setData(ColID, Qt::UserRole, r.AdevID);
        i->setData(ColID, RolCerere, r.CerereID);
        i->setData(ColID, RolMembru, r.MembruID);
        if (r.AdevID == selectat) ales = i;
        iteme << i;
    }
    lvwAdeverinte->addTopLevelItems(iteme);
    LatimiColoane(lvwAdeverinte);
    if (!ales && !iteme.isEmpty()) ales = iteme.first();
    if (ales) {
        lvwAdeverinte->setCurrentItem(ales);
        lvwAdeverinte->scrollToItem(ales);
    }
}

void frmAdeverinte::cmdAdd_Click() {
    const QTreeWidgetItem* r = RandAles(lvwAdeverinte, m_, FaraSelectie);
    if (!r) return;
    // The new certificate goes to the pupil of the selected row, on the same request.
    AdeverintaScolara rec;
    rec.CerereID = r->data(ColID, RolCerere).toLongLong();
    rec.MembruID = r->data(ColID, RolMembru).toLongLong();
    rec.TipAdeverinta = Adeverinte::TipScoala;
    frmAdAdeverinte f(db_, m_, 1, rec, this);
    ArataModal(f);
    if (f.ESTE_OK) Incarca(f.RecAdev.AdevID);
}

void frmAdeverinte::cmdEdit_Click() {
    QTreeWidgetItem* r = RandAles(lvwAdeverinte, m_, FaraSelectie);
    std::optional<AdeverintaScolara> rec;
    if (!r || !RecitesteRandul(lvwAdeverinte, r, m_, [&](qint64 cheie) {
            return (rec = Adeverinte::CitesteAdeverinta(db_, cheie)).has_value();
        }))
        return;
    frmAdAdeverinte f(db_, m_, 2, *rec, this);
    ArataModal(f);
    if (f.ESTE_OK) Incarca(f.RecAdev.AdevID);
}

void frmAdeverinte::cmdDelete_Click() {
    QTreeWidgetItem* r = RandAles(lvwAdeverinte, m_, FaraSelectie);
    if (!r || !VerificaBD(db_, m_)) return;
    LaMargine(m_, [&] {
        if (Adeverinte::StergeAdeverintaScolara(db_, m_, r->data(ColID, Qt::UserRole).toLongLong(), r->text(ColNrAdev)))
            StergeRand(lvwAdeverinte, r);
    });
}
