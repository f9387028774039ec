#include "app/frmMain.h"

#include "cases/Adeverinte.h"
#include "cases/Anchete.h"
#include "cases/Dispozitii.h"
#include "cases/frmAddAnchete.h"
#include "cases/frmAddCerere.h"
#include "cases/frmAddDispozitie.h"
#include "cases/frmAnexa2.h"
#include "cases/frmListaActeExpira.h"
#include "documents/ComenziDocumente.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "cases/ModelCereri.h"

#include "app/Pornire.h"
#include "store/Program.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiMargine.h"
#include "store/BazaDate.h"
#include "reference/frmDatePrimarie2.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

// The main window's lower panels (dispositions, inquiries, certificates), its print commands and the notice of
// expiring certificates.

void frmMain::ListeleCererii(qint64 cerereID) {
    ListaAnchete(cerereID);
    ListaDispozitii(cerereID);
    ListaAdeverinte(cerereID);
}

void frmMain::ListaDispozitii(qint64 cerereID) {
    lvwDispozitii->clear();
    const auto randuri = cerereID ? Dispozitii::ListaDispozitii(p_.bd, cerereID) : std::vector<RandDispozitie>{};
    for (const RandDispozitie& d : randuri) {
        auto* item =
            new QTreeWidgetItem(lvwDispozitii, {QString::number(d.DispozitieID), d.NrDisp, FormatData(d.DataDisp),
                                                d.TipDecizie, FormatSuma(d.Cuantum), d.Luna, d.An});
        item->setData(0, Qt::UserRole, d.DispozitieID);
    }
    const RandCerere* r = model_->Rand(RandSelectat());
    lblDispozitii->setText(Dispozitii::TitluDispozitii(r ? r->Solicitant : QString(), randuri.size()));
    for (QPushButton* b : {cmdEditDisp, cmdDelDisp, cmdPrintDisp})
        b->setEnabled(!randuri.empty());
    if (!randuri.empty()) lvwDispozitii->setCurrentItem(lvwDispozitii->topLevelItem(0));
}

void frmMain::ListaAdeverinte(qint64 cerereID) {
    lvwAdeverinte->clear();
    const auto randuri =
        cerereID ? Adeverinte::ListaAdeverinteCerere(p_.bd, cerereID) : std::vector<RandAdeverintaCerere>{};
    for (const RandAdeverintaCerere& a : randuri) {
        auto* item = new QTreeWidgetItem(lvwAdeverinte,
                                         {QString::number(a.AdevID), a.Membru, a.TipAdeverinta, a.NrAdev,
                                          FormatData(a.DataAdeverinta), FormatData(a.DataDepunerii),
                                          FormatData(a.DataExpAdev), a.Curenta ? QStringLiteral("Da") : QString()});
        item->setData(0, Qt::UserRole, a.AdevID);
    }
    // A request holds few certificates: the columns take the width of their texts.
    for (int c = 1; c < lvwAdeverinte->columnCount(); ++c)
        lvwAdeverinte->resizeColumnToContents(c);
    if (!randuri.empty()) lvwAdeverinte->setCurrentItem(lvwAdeverinte->topLevelItem(0));
}

qint64 frmMain::CerereSelectata() const {
    const RandCerere* r = model_->Rand(RandSelectat());
    return r ? r->CerereID : 0;
}

qint64 frmMain::DispozitieSelectata() const {
    const QTreeWidgetItem* item = lvwDispozitii->currentItem();
    return item ? item->data(0, Qt::UserRole).toLongLong() : 0;
}

void frmMain::SelecteazaDispozitia(qint64 dispozitieID) {
    for (int i = 0; i < lvwDispozitii->topLevelItemCount(); ++i)
        if (lvwDispozitii->topLevelItem(i)->data(0, Qt::UserRole).toLongLong() == dispozitieID) {
            lvwDispozitii->setCurrentItem(lvwDispozitii->topLevelItem(i));
            return;
        }
}

void frmMain::RescrieRandul(qint64 cerereID) {
    const int rand = model_->RandulCererii(cerereID);
    if (rand < 0) return;
    const RandCerere nou = ListaCereri::Citeste(p_.bd, cerereID);
    if (nou.CerereID != 0) model_->Inlocuieste(rand, nou);
}

void frmMain::cmdAddDisp_Click() {
    LaMargine(m_, [&] {
        const qint64 cerereID = CerereSelectata();
        if (!Dispozitii::PoateAdauga(p_.bd, m_, cerereID)) return;
        frmAddDispozitie f(p_.bd, m_, 1, cerereID, 0, this);
        if (!f.Deschisa()) return;
        ArataModal(f);
        if (!f.ESTE_OK) return;
        ListaDispozitii(cerereID);
        SelecteazaDispozitia(f.DispozitieID());
    });
}

void frmMain::cmdEditDisp_Click() {
    LaMargine(m_, [&] {
        const qint64 dispozitieID = DispozitieSelectata();
        if (!Dispozitii::PoateModifica(p_.bd, m_, dispozitieID)) return;
        frmAddDispozitie f(p_.bd, m_, 2, 0, dispozitieID, this);
        if (!f.Deschisa()) return;
        ArataModal(f);
        if (!f.ESTE_OK) return;
        ListaDispozitii(CerereSelectata());
        SelecteazaDispozitia(dispozitieID);
    });
}

TiparireDocumente frmMain::Tiparire() const {
    TiparireDocumente t;
    t.optiuni = OptiuniDinSetari(p_.setari, p_.applicationPath);
    t.optiuni.DataFisa = dtpDataFisa->data();
    t.folder = p_.applicationPath;
    t.AppWord = p_.setari.AppWord;
    t.mediu = MediuDocumente;
    return t;
}

void frmMain::cmdPrintDisp_Click() {
    LaMargine(m_, [&] { ComenziDocumente::TiparesteDispozitie(p_.bd, DispozitieSelectata(), Tiparire(), m_); });
}

void frmMain::cmdFisaCalcul_Click() {
    LaMargine(m_, [&] { ComenziDocumente::TiparesteFisa(p_.bd, CerereSelectata(), Tiparire(), m_); });
}

void frmMain::cmdDeclaratie_Click() {
    LaMargine(m_, [&] { ComenziDocumente::TiparesteDeclaratie(p_.bd, CerereSelectata(), Tiparire(), m_); });
}

void frmMain::ActivareComenzi() {
    ComenziWeb::StareComenzi s;
    s.cmdEdit = cmdEdit->isEnabled();
    s.cmdDelete = cmdDelete->isEnabled();
    s.cmdCerere = cmdCerere->isEnabled();
    s.cmdSelect = cmdSelect->isEnabled();
    s.cmdPrintAncheta = cmdPrintAncheta->isEnabled();
    s.cmdFisaCalcul = cmdFisaCalcul->isEnabled();
    s.cmdAddAncheta = cmdAddAncheta->isEnabled();
    s.cmdAddDisp = cmdAddDisp->isEnabled();
    const auto mediu = PunteWeb::MediuWeb::DinApplicationPath(p_.applicationPath, p_.setari.ServerCerere);
    s = ComenziWeb::ActivareComenzi(model_->rowCount(), s, ComenziWeb::FisiereWebExista(mediu));
    cmdEdit->setEnabled(s.cmdEdit);
    cmdDelete->setEnabled(s.cmdDelete);
    cmdCerere->setEnabled(s.cmdCerere);
    cmdSelect->setEnabled(s.cmdSelect);
    cmdPrintAncheta->setEnabled(s.cmdPrintAncheta);
    cmdFisaCalcul->setEnabled(s.cmdFisaCalcul);
    cmdAddAncheta->setEnabled(s.cmdAddAncheta);
    cmdAddDisp->setEnabled(s.cmdAddDisp);
}

void frmMain::TiparesteWeb(ComenziWeb::Comanda c) {
    const auto mediu = PunteWeb::MediuWeb::DinApplicationPath(p_.applicationPath, p_.setari.ServerCerere);
    const auto pagina = ComenziWeb::Tipareste(p_.bd, mediu, c, CerereSelectata(), m_);
    // A browser that does not start leaves nothing to tell: the page simply does not appear.
    if (pagina) DeschidePagina(*pagina);
}

void frmMain::mnuAnexa2_Click() {
    TiparireToateDispozitiile(mnuAnexa2, TextTiparire::MnuAnexa2);
}

void frmMain::mnuToateDisp_Click() {
    TiparireToateDispozitiile(mnuToateDisp, TextTiparire::MnuToateDisp);
}

void frmMain::TiparireToateDispozitiile(QAction* comanda, const QString& textInapoi) {
    if (comanda->text() == TextTiparire::Opreste) {
        StopTiparire = true;
        comanda->setText(textInapoi);
        return;
    }
    if (!VerificaBD(p_.bd, m_)) return;
    SelectieTiparire selectie;
    const bool ales = LaMargine(m_, [&] {
        frmAnexa2 f(p_.bd, m_, p_.setari.LunaSetata, p_.setari.AnSetat, this);
        ArataModal(f);
        // A generation may have given the selected request a disposition of its own.
        if (f.Generate > 0 && CerereSelectata() != 0) ListaDispozitii(CerereSelectata());
        if (!f.ESTE_OK) return false;
        selectie = f.Selectie;
        return true;
    });
    if (!ales) return;
    StopTiparire = false;
    comanda->setText(TextTiparire::Opreste);
    LaMargine(m_, [&] {
        std::vector<qint64> chei;
        for (const DispozitieDeTiparit& d :
             Dispozitii::SelecteazaPentruTiparire(p_.bd, m_, selectie, p_.setari.AnSetat))
            chei.push_back(d.DispozitieID);
        if (!chei.empty()) ComenziDocumente::TiparesteDispozitiile(p_.bd, chei, Tiparire(), m_);
    });
    comanda->setText(textInapoi);
}

void frmMain::picNotific_Click() {
    frmListaActeExpira f(p_.bd, m_, this);
    f.AscundeNotificarea = [this] {
        timerNotificare_->stop();
        picNotific->hide();
    };
    f.DeschideCerere = [this](qint64 cerereID, qint64 membruID) {
        frmAddCerere e(p_.bd, p_.setari, m_, DeschidereCerere{2, cerereID, true, membruID}, this);
        if (!e.Gasita()) {
            m_.Informatie(TextRandNegasit);
            return false;
        }
        ArataModal(e);
        if (e.ESTE_OK) RescrieRandul(cerereID);
        return e.ESTE_OK;
    };
    ArataModal(f);
}

void frmMain::ListaAnchete(qint64 cerereID) {
    lvwAnchete->clear();
    const auto randuri = cerereID ? Anchete::ListaAnchete(p_.bd, cerereID) : std::vector<RandAncheta>{};
    for (const RandAncheta& a : randuri) {
        auto* item = new QTreeWidgetItem(
            lvwAnchete, {QString::number(a.AnchetaID), a.Data, a.NrMembrii, a.NrCopii, a.DataExpirarii, a.Motiv});
        item->setData(0, Qt::UserRole, a.AnchetaID);
    }
    const RandCerere* r = model_->Rand(RandSelectat());
    lblAnchete->setText(Anchete::TitluAnchete(r ? r->Solicitant : QString(), randuri.size()));
    cmdEditAncheta->setEnabled(!randuri.empty());
    cmdDelAncheta->setEnabled(!randuri.empty());
    if (!randuri.empty()) lvwAnchete->setCurrentItem(lvwAnchete->topLevelItem(0));
}

void frmMain::cmdAddAncheta_Click() {
    const RandCerere* r = model_->Rand(RandSelectat());
    LaMargine(m_, [&] {
        if (!Anchete::PoateAdauga(p_.bd, m_, r ? r->CerereID : 0)) return;
        const qint64 cerereID = r->CerereID;
        const int nrCopii = int(ListaCereri::Citeste(p_.bd, cerereID).NrCopii);
        frmAddAnchete f(p_.bd, m_, 1, cerereID, 0, nrCopii, this);
        ArataModal(f);
        if (f.ESTE_OK) ListaAnchete(cerereID);
    });
}

void frmMain::cmdEditAncheta_Click() {
    QTreeWidgetItem* item = lvwAnchete->currentItem();
    const RandCerere* r = model_->Rand(RandSelectat());
    LaMargine(m_, [&] {
        const qint64 anchetaID = item ? item->data(0, Qt::UserRole).toLongLong() : 0;
        if (!Anchete::PoateModifica(p_.bd, m_, anchetaID) || !r) return;
        const qint64 cerereID = r->CerereID;
        const int nrCopii = int(ListaCereri::Citeste(p_.bd, cerereID).NrCopii);
        frmAddAnchete f(p_.bd, m_, 2, cerereID, anchetaID, nrCopii, this);
        ArataModal(f);
        if (f.ESTE_OK) ListaAnchete(cerereID);
    });
}

void frmMain::cmdDelAncheta_Click() {
    QTreeWidgetItem* item = lvwAnchete->currentItem();
    const bool stearsa = LaMargine(m_, [&] {
        const qint64 anchetaID = item ? item->data(0, Qt::UserRole).toLongLong() : 0;
        return Anchete::Sterge(p_.bd, m_, anchetaID, item ? item->text(0) : QString());
    });
    if (!stearsa) return;
    const int index = lvwAnchete->indexOfTopLevelItem(item);
    delete lvwAnchete->takeTopLevelItem(index);
    const int ramase = lvwAnchete->topLevelItemCount();
    if (ramase > 0) lvwAnchete->setCurrentItem(lvwAnchete->topLevelItem(std::min(index, ramase - 1)));
    cmdEditAncheta->setEnabled(ramase > 0);
    cmdDelAncheta->setEnabled(ramase > 0);
}

void frmMain::mnuDatePrimarie_Click() {
    frmDatePrimarie2 f(p_.bd, m_, this);
    ArataModal(f);
    ScrieTitlul(false);
}

void frmMain::cmdDelDisp_Click() {
    QTreeWidgetItem* item = lvwDispozitii->currentItem();
    if (!item) {
        m_.Informatie(QStringLiteral("Selectati o dispozitie!"));
        return;
    }
    const int index = lvwDispozitii->indexOfTopLevelItem(item);
    const Margine cum{.inainte = QStringLiteral("Exceptie Morvante din \"Delete Dispozitii\" ")};
    const bool stearsa = LaMargine(m_, cum, [&] {
        // Re-read first: a disposition removed on another computer is not asked about.
        if (!Dispozitii::PoateModifica(p_.bd, m_, item->data(0, Qt::UserRole).toLongLong())) return false;
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti dispozitia %1 ?").arg(item->text(1)), {}, false))
            return false;
        if (!Dispozitii::StergeDispozitie(p_.bd, item->data(0, Qt::UserRole).toLongLong()))
            m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!"));
        return true;
    });
    if (!stearsa) return;
    delete lvwDispozitii->takeTopLevelItem(index);
    const int ramase = lvwDispozitii->topLevelItemCount();
    if (ramase > 0) lvwDispozitii->setCurrentItem(lvwDispozitii->topLevelItem(std::min(index, ramase - 1)));
    for (QPushButton* b : {cmdEditDisp, cmdDelDisp, cmdPrintDisp})
        b->setEnabled(ramase > 0);
}
