#include "app/frmOptiuni.h"

#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

template <class W> W* Control(W* w, const char* nume) {
    w->setObjectName(QLatin1String(nume));
    return w;
}

QCheckBox* Bifa(QWidget* parinte, const char* nume, const QString& text) {
    return Control(new QCheckBox(text, parinte), nume);
}

QComboBox* Lista(QWidget* parinte, const char* nume, const std::vector<ElementCombo>& elemente) {
    auto* c = Control(new QComboBox(parinte), nume);
    for (const auto& e : elemente)
        c->addItem(e.text, e.valoare);
    return c;
}

} // namespace

frmOptiuni::frmOptiuni(Setari& setari, const QString& fisierIni, Mesaje& m, QWidget* parinte)
    : QDialog(parinte), setari_(setari), fisierIni_(fisierIni), m_(m) {
    setObjectName(QStringLiteral("frmOptiuni"));
    setWindowTitle(QStringLiteral("Optiuni"));
    AsazaControale();
    ArataValori(ValoriDinSetari(setari_));
}

void frmOptiuni::AsazaControale() {
    auto* asezare = new QVBoxLayout(this);
    // The old dialog switched its panels with a row of option buttons; the tabs do the same.
    tabOptiuni = Control(new QTabWidget(this), "tabOptiuni");
    asezare->addWidget(tabOptiuni);

    // General
    auto* general = new QWidget(tabOptiuni);
    auto* vGeneral = new QVBoxLayout(general);
    chk_update_off = Bifa(general, "chk_update_off", QStringLiteral("Opreste actualizarea automata la pornire"));
    chkReteaSetat = Bifa(general, "chkReteaSetat", QStringLiteral("Functioneaza in retea"));
    chkAfisCereri = Bifa(general, "chkAfisCereri", QStringLiteral("Afiseaza lista cererilor la pornire"));
    chkNotifActe = Bifa(general, "chkNotifActe", QStringLiteral("Cauta la pornire actele care expira"));
    for (auto* c : {chk_update_off, chkReteaSetat, chkAfisCereri, chkNotifActe})
        vGeneral->addWidget(c);
    auto* fGeneral = new QFormLayout;
    txtStrSat = Control(new QLineEdit(general), "txtStrSat");
    cboNrCerere = Lista(general, "cboNrCerere", ListaNrCerere());
    txtServerCerere = Control(new QLineEdit(general), "txtServerCerere");
    txtServerCerere->setMinimumWidth(260);
    txtServerActualizare = Control(new QLineEdit(general), "txtServerActualizare");
    txtServerActualizare->setPlaceholderText(QStringLiteral("https://... (gol: fara actualizare)"));
    fGeneral->addRow(QStringLiteral("Denumire pentru strada / sat:"), txtStrSat);
    fGeneral->addRow(QStringLiteral("Numar pentru o cerere noua:"), cboNrCerere);
    fGeneral->addRow(QStringLiteral("Adresa serverului de cereri:"), txtServerCerere);
    fGeneral->addRow(QStringLiteral("Adresa serverului de actualizare:"), txtServerActualizare);
    vGeneral->addLayout(fGeneral);
    auto* grupCuloare = new QGroupBox(QStringLiteral("Culoarea de fundal a ferestrei de venituri"), general);
    auto* hCuloare = new QHBoxLayout(grupCuloare);
    lblFundal = Control(new QLabel(grupCuloare), "lblFundal");
    lblFundal->setFrameShape(QFrame::Box);
    lblFundal->setFixedSize(64, 24);
    cmdCuloare = Control(new QPushButton(QStringLiteral("Alege culoarea..."), grupCuloare), "cmdCuloare");
    cmdDelColor = Control(new QPushButton(QStringLiteral("Sterge culoarea"), grupCuloare), "cmdDelColor");
    hCuloare->addWidget(lblFundal);
    hCuloare->addWidget(cmdCuloare);
    hCuloare->addWidget(cmdDelColor);
    hCuloare->addStretch();
    vGeneral->addWidget(grupCuloare);
    vGeneral->addStretch();
    tabOptiuni->addTab(general, QStringLiteral("Generale"));

    // Documents and printing
    auto* documente = new QWidget(tabOptiuni);
    auto* vDocumente = new QVBoxLayout(documente);
    auto* fDocumente = new QFormLayout;
    cboAppWord = Lista(documente, "cboAppWord", ListaAppWord());
    cboDataCerere = Lista(documente, "cboDataCerere", ListaDataCerere());
    fDocumente->addRow(QStringLiteral("Aplicatia care deschide documentele:"), cboAppWord);
    fDocumente->addRow(QStringLiteral("Data pe cererea tiparita:"), cboDataCerere);
    vDocumente->addLayout(fDocumente);
    chkNrCerere = Bifa(documente, "chkNrCerere", QStringLiteral("Tipareste Nr si Data Cerere"));
    chkCerere13Pag = Bifa(documente, "chkCerere13Pag", QStringLiteral(" In Cerere se tiparesc minim 13 pagini"));
    chkAncheta14Pag = Bifa(documente, "chkAncheta14Pag", QStringLiteral(" In Ancheta se tiparesc minim 14 pagini"));
    chkNrCerereInAncheta = Bifa(documente, "chkNrCerereInAncheta", QStringLiteral("Tipareste Nr cerere in ancheta"));
    chkAngPlata = Bifa(documente, "chkAngPlata", QStringLiteral("Tipareste angajamentul de plata"));
    chkCertificare = Bifa(documente, "chkCertificare", QStringLiteral("Tipareste certificarea primarului"));
    chkAnexa2ExportWord = Bifa(documente, "chkAnexa2ExportWord", QStringLiteral("Dispozitia nu se exporta in Word"));
    chkMotiv = Bifa(documente, "chkMotiv", QStringLiteral("Motivul din dispozitie se ia din cerere"));
    for (auto* c : {chkNrCerere, chkCerere13Pag, chkAncheta14Pag, chkNrCerereInAncheta, chkAngPlata, chkCertificare,
                    chkAnexa2ExportWord, chkMotiv})
        vDocumente->addWidget(c);
    vDocumente->addStretch();
    tabOptiuni->addTab(documente, QStringLiteral("Documente"));

    // Reports
    auto* rapoarte = new QWidget(tabOptiuni);
    auto* vRapoarte = new QVBoxLayout(rapoarte);
    auto* grupFont = new QGroupBox(QStringLiteral("Fontul rapoartelor"), rapoarte);
    auto* vFont = new QVBoxLayout(grupFont);
    lblFont = Control(new QLabel(grupFont), "lblFont");
    lblFont->setFrameShape(QFrame::StyledPanel);
    lblFont->setMinimumHeight(40);
    // A long font name is cut at the right rather than widening the dialog.
    lblFont->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    cmdFont = Control(new QPushButton(QStringLiteral("Schimba fontul..."), grupFont), "cmdFont");
    vFont->addWidget(lblFont);
    vFont->addWidget(cmdFont, 0, Qt::AlignRight);
    vRapoarte->addWidget(grupFont);
    auto* fRapoarte = new QFormLayout;
    txtHeightRowBorderou = Control(new QLineEdit(rapoarte), "txtHeightRowBorderou");
    txtHeightRowRaport = Control(new QLineEdit(rapoarte), "txtHeightRowRaport");
    for (auto* t : {txtHeightRowBorderou, txtHeightRowRaport})
        t->setMaximumWidth(60);
    cboNrCerereAnexa3 = Lista(rapoarte, "cboNrCerereAnexa3", ListaNrCerereAnexa3());
    txtAnexa3 = Control(new QLineEdit(rapoarte), "txtAnexa3");
    txtAnexa4 = Control(new QLineEdit(rapoarte), "txtAnexa4");
    txtStatPlata = Control(new QLineEdit(rapoarte), "txtStatPlata");
    fRapoarte->addRow(QStringLiteral("Inaltimea randului in borderou (puncte):"), txtHeightRowBorderou);
    fRapoarte->addRow(QStringLiteral("Inaltimea randului in rapoarte (puncte):"), txtHeightRowRaport);
    fRapoarte->addRow(QStringLiteral("Nr curent in Anexa 3 si in statul de plata:"), cboNrCerereAnexa3);
    fRapoarte->addRow(QStringLiteral("Fisierul exportului Anexa 3:"), txtAnexa3);
    fRapoarte->addRow(QStringLiteral("Fisierul exportului Anexa 4:"), txtAnexa4);
    fRapoarte->addRow(QStringLiteral("Fisierul exportului stat de plata:"), txtStatPlata);
    auto* hExport = new QHBoxLayout;
    txtFolderExport = Control(new QLineEdit(rapoarte), "txtFolderExport");
    txtFolderExport->setPlaceholderText(QStringLiteral("Desktop"));
    cmdFolderExport = Control(new QPushButton(QStringLiteral("..."), rapoarte), "cmdFolderExport");
    cmdFolderExport->setMaximumWidth(32);
    hExport->addWidget(txtFolderExport);
    hExport->addWidget(cmdFolderExport);
    fRapoarte->addRow(QStringLiteral("Folderul rapoartelor exportate:"), hExport);
    connect(cmdFolderExport, &QPushButton::clicked, this, [this] {
        const QString ales = QFileDialog::getExistingDirectory(this, QStringLiteral("Folderul rapoartelor exportate"),
                                                               txtFolderExport->text());
        if (!ales.isEmpty()) txtFolderExport->setText(QDir::toNativeSeparators(ales));
    });
    vRapoarte->addLayout(fRapoarte);
    chkSerieStatPlata = Bifa(rapoarte, "chkSerieStatPlata", QStringLiteral("Afiseaza seria in statul de plata"));
    vRapoarte->addWidget(chkSerieStatPlata);
    vRapoarte->addStretch();
    tabOptiuni->addTab(rapoarte, QStringLiteral("Rapoarte"));

    asezare->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { OK(); }));

    connect(cmdFont, &QPushButton::clicked, this, &frmOptiuni::cmdFont_Click);
    connect(cmdCuloare, &QPushButton::clicked, this, &frmOptiuni::cmdCuloare_Click);
    connect(cmdDelColor, &QPushButton::clicked, this, &frmOptiuni::cmdDelColor_Click);
}

void frmOptiuni::ArataValori(const ValoriOptiuni& v) {
    chk_update_off->setChecked(v.OpresteActualizareAutomata);
    cboNrCerereAnexa3->setCurrentIndex(v.NrCerereAnexa3.isEmpty() ? -1 : cboNrCerereAnexa3->findText(v.NrCerereAnexa3));
    cboNrCerere->setCurrentIndex(0);
    fontName0_ = v.FontName0;
    fontSize0_ = v.FontSize0;
    fontB0_ = v.FontB0;
    fontI0_ = v.FontI0;
    fontU0_ = v.FontU0;
    ArataFont();
    chkAfisCereri->setChecked(v.AfisCereri);
    txtAnexa3->setText(v.Anexa3);
    txtAnexa4->setText(v.Anexa4);
    txtStatPlata->setText(v.StatPlata);
    chkAnexa2ExportWord->setChecked(v.Anexa2ExportWord);
    txtStrSat->setText(v.StrSat);
    chkSerieStatPlata->setChecked(v.AfisSerieStatPlata);
    chkReteaSetat->setChecked(v.ReteaSetat);
    chkMotiv->setChecked(v.Motiv);
    txtHeightRowBorderou->setText(v.HeightRowBorderou);
    txtHeightRowRaport->setText(v.HeightRowRaport);
    cboAppWord->setCurrentIndex(cboAppWord->findData(v.AppWord));
    cboDataCerere->setCurrentIndex(cboDataCerere->findData(v.DataCerereTiparita));
    chkCerere13Pag->setChecked(v.Cerere13Pag);
    chkAncheta14Pag->setChecked(v.Ancheta14Pag);
    chkNotifActe->setChecked(v.NotificareActe);
    chkAngPlata->setChecked(v.AngajamentPlata);
    chkCertificare->setChecked(v.CertificarePrimar);
    chkNrCerereInAncheta->setChecked(v.NrCerereInAncheta);
    chkNrCerere->setChecked(v.NrCerereTiparita);
    txtServerCerere->setText(v.ServerCerere);
    txtServerActualizare->setText(v.ServerActualizare);
    culoareVenit_ = v.CuloareVenit;
    txtFolderExport->setText(v.FolderExport);
    ArataCuloare();
}

ValoriOptiuni frmOptiuni::CitesteValori() const {
    ValoriOptiuni v;
    v.OpresteActualizareAutomata = chk_update_off->isChecked();
    v.NrCerereAnexa3 = cboNrCerereAnexa3->currentIndex() < 0 ? QString() : cboNrCerereAnexa3->currentText();
    v.FontSize0 = fontSize0_;
    v.FontName0 = fontName0_;
    v.FontB0 = fontB0_;
    v.FontI0 = fontI0_;
    v.FontU0 = fontU0_;
    v.AfisCereri = chkAfisCereri->isChecked();
    v.Anexa3 = txtAnexa3->text();
    v.Anexa4 = txtAnexa4->text();
    v.StatPlata = txtStatPlata->text();
    v.Anexa2ExportWord = chkAnexa2ExportWord->isChecked();
    v.StrSat = txtStrSat->text();
    v.AfisSerieStatPlata = chkSerieStatPlata->isChecked();
    v.ReteaSetat = chkReteaSetat->isChecked();
    v.Motiv = chkMotiv->isChecked();
    v.HeightRowBorderou = txtHeightRowBorderou->text();
    v.HeightRowRaport = txtHeightRowRaport->text();
    // No selection counts as the position before the first item, as the old list index did.
    v.AppWord = cboAppWord->currentIndex() < 0 ? 0 : cboAppWord->currentData().toInt();
    v.DataCerereTiparita = cboDataCerere->currentIndex() < 0 ? -1 : cboDataCerere->currentData().toInt();
    v.Cerere13Pag = chkCerere13Pag->isChecked();
    v.Ancheta14Pag = chkAncheta14Pag->isChecked();
    v.NotificareActe = chkNotifActe->isChecked();
    v.AngajamentPlata = chkAngPlata->isChecked();
    v.CertificarePrimar = chkCertificare->isChecked();
    v.NrCerereInAncheta = chkNrCerereInAncheta->isChecked();
    v.NrCerereTiparita = chkNrCerere->isChecked();
    v.ServerCerere = txtServerCerere->text();
    v.ServerActualizare = txtServerActualizare->text();
    v.CuloareVenit = culoareVenit_;
    v.FolderExport = txtFolderExport->text();
    return v;
}

void frmOptiuni::ArataFont() {
    lblFont->setText(TextMostraFont(fontName0_, fontSize0_, fontB0_, fontI0_, fontU0_));
    QFont f(fontName0_);
    // The sample keeps a readable size whatever was chosen, so that the dialog keeps its shape.
    f.setPointSize(std::clamp(fontSize0_, 6, 14));
    f.setBold(fontB0_);
    f.setItalic(fontI0_);
    f.setUnderline(fontU0_);
    lblFont->setFont(f);
}

void frmOptiuni::ArataCuloare() {
    const std::optional<QColor> c = CuloareDinText(culoareVenit_);
    QPalette p = lblFundal->parentWidget()->palette();
    if (c) p.setColor(QPalette::Window, *c);
    lblFundal->setAutoFillBackground(c.has_value());
    lblFundal->setPalette(p);
}

void frmOptiuni::AlegeFont(const QFont& font) {
    const int marime = font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
    // Refused as it is chosen: the font shown and kept stays the one before.
    if (const std::optional<QString> refuz = VerificaMarimeFont(marime)) {
        m_.Avertisment(*refuz, windowTitle());
        return;
    }
    fontName0_ = font.family();
    fontSize0_ = marime;
    fontB0_ = font.bold();
    fontI0_ = font.italic();
    fontU0_ = font.underline();
    ArataFont();
}

void frmOptiuni::AlegeCuloare(const QColor& culoare) {
    culoareVenit_ = CuloareInText(culoare);
    ArataCuloare();
}

void frmOptiuni::cmdFont_Click() {
    QFont curent(fontName0_);
    curent.setPointSize(std::max(1, fontSize0_));
    curent.setBold(fontB0_);
    curent.setItalic(fontI0_);
    curent.setUnderline(fontU0_);
    bool ales = false;
    const QFont f = QFontDialog::getFont(&ales, curent, this, QStringLiteral("Font"));
    if (ales) AlegeFont(f);
}

void frmOptiuni::cmdCuloare_Click() {
    const QColor initiala = CuloareDinText(culoareVenit_).value_or(Qt::white);
    const QColor c = QColorDialog::getColor(initiala, this, QStringLiteral("Culoare"));
    if (c.isValid()) AlegeCuloare(c);
}

void frmOptiuni::cmdDelColor_Click() {
    culoareVenit_.clear();
    ArataCuloare();
}

void frmOptiuni::OK() {
    const ValoriOptiuni v = CitesteValori();
    if (const std::optional<QString> refuz = VerificaOptiuni(v)) {
        m_.Avertisment(*refuz, windowTitle());
        return;
    }
    const Setari noi = AplicaOptiuni(setari_, v);
    if (!LaMargine(m_, {.titlu = windowTitle()}, [&] { ScrieOptiuni(fisierIni_, noi); })) return;
    setari_ = noi;
    accept();
}
