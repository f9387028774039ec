#include "cases/frmBife.h"

#include "cases/StareCerere.h"
#include "cases/UiGrilaSume.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTableWidget>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

constexpr int ColoanaCantitate = 4;
const QColor FundalCantitate(255, 255, 200);

CatalogBife catalog(BazaDate& bd, Mesaje& m) {
    // Empty lists copy nothing back: the goods stay as they were, and Bife too.
    CatalogBife c;
    LaMargine(m, [&] { c = CitesteListaBife(bd); });
    return c;
}

} // namespace

frmBife::frmBife(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte)
    : QDialog(parinte), m_(m), stare_(stare), catalog_(catalog(bd, m)), grila_(catalog_.Bunuri, stare.Bunuri) {
    setObjectName(QStringLiteral("frmBife"));
    setWindowTitle(TitluBife);
    AlegeImprimanta = [this](QPrinter& p) {
        QPrintDialog d(&p, this);
        return d.exec() == QDialog::Accepted;
    };
    auto* asezare = new QVBoxLayout(this);

    auto* cadru = new QGroupBox(QStringLiteral("Familia detine (oricare bifa duce la excludere):"), this);
    auto* asezareCadru = new QVBoxLayout(cadru);
    lstBife = new QListWidget(cadru);
    lstBife->setObjectName(QStringLiteral("lstBife"));
    lstBife->setWordWrap(true);
    lstBife->setTextElideMode(Qt::ElideNone);
    asezareCadru->addWidget(lstBife);
    asezare->addWidget(cadru, 2);

    Grid = new QTableWidget(this);
    Grid->setObjectName(QStringLiteral("Grid"));
    Grid->setColumnCount(int(ColoaneBunuri.size()));
    Grid->setHorizontalHeaderLabels({ColoaneBunuri.begin(), ColoaneBunuri.end()});
    auto* antet = Grid->horizontalHeader();
    antet->setSectionResizeMode(QHeaderView::Fixed);
    antet->setSectionResizeMode(2, QHeaderView::Stretch);
    Grid->setColumnWidth(0, 40);
    Grid->setColumnWidth(1, 40);
    Grid->setColumnWidth(3, 100);
    Grid->setColumnWidth(ColoanaCantitate, 140);
    PregatesteGrilaSume(Grid);
    asezare->addWidget(Grid, 5);

    auto* jos = new QHBoxLayout;
    auto* eticheta = new QLabel(QStringLiteral("Venitul net (EURO):"), this);
    txtVenituri = new QLineEdit(this);
    txtVenituri->setObjectName(QStringLiteral("txtVenituri"));
    txtVenituri->setReadOnly(true);
    txtVenituri->setAlignment(Qt::AlignRight);
    txtVenituri->setMaximumWidth(140);
    eticheta->setBuddy(txtVenituri);
    jos->addWidget(eticheta);
    jos->addWidget(txtVenituri);
    jos->addStretch(1);
    cmdPreview = Buton(this, jos, "cmdPreview", QStringLiteral("Previzualizare"));
    cmdPrint = Buton(this, jos, "cmdPrint", QStringLiteral("Tipareste"));
    cmdOK = Buton(this, jos, "cmdOK", QStringLiteral("OK"));
    cmdCancel = Buton(this, jos, "cmdCancel", QStringLiteral("Renunta"));
    asezare->addLayout(jos);

    umple();
    ConecteazaColoanaSume(
        Grid, ColoanaCantitate, m_, [this](size_t rand, const QString& text) { grila_.Seteaza(rand, text); },
        [this](size_t rand) { return TextCelula(grila_.Cantitate(rand)); },
        [this] { txtVenituri->setText(FormatSuma(grila_.Valoare())); });
    connect(cmdPreview, &QPushButton::clicked, this, &frmBife::cmdPreview_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmBife::cmdPrint_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmBife::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(980, 720);
}

void frmBife::umple() {
    const std::vector<bool> bifate = DespacheteazaBife(stare_.Bife, catalog_.Excludere.size());
    for (size_t i = 0; i < catalog_.Excludere.size(); ++i) {
        auto* r = new QListWidgetItem(TextRandBifa(catalog_.Excludere[i]), lstBife);
        r->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        r->setCheckState(bifate[i] ? Qt::Checked : Qt::Unchecked);
    }

    const auto& randuri = grila_.Randuri();
    Grid->setRowCount(int(randuri.size()));
    auto fix = [&](int rand, int coloana, const QString& text, Qt::Alignment aliniere = Qt::AlignLeft) {
        auto* c = new QTableWidgetItem(text);
        c->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        c->setTextAlignment(aliniere | Qt::AlignVCenter);
        Grid->setItem(rand, coloana, c);
        return c;
    };
    for (size_t i = 0; i < randuri.size(); ++i) {
        const BunCatalog& b = randuri[i];
        const int r = int(i);
        fix(r, 0, b.Tip);
        fix(r, 1, QString::number(b.Cod), Qt::AlignRight);
        fix(r, 2, b.Denumire)->setToolTip(b.Denumire);
        fix(r, 3, FormatSuma(b.Valoare), Qt::AlignRight);
        auto* cantitate = new QTableWidgetItem(TextCelula(grila_.Cantitate(i)));
        cantitate->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        cantitate->setBackground(FundalCantitate);
        Grid->setItem(r, ColoanaCantitate, cantitate);
    }
    txtVenituri->setText(FormatSuma(grila_.Valoare()));
}

void frmBife::Tipareste(QPrinter& imprimanta) const {
    QTextDocument document;
    QFont f = document.defaultFont();
    f.setPointSize(9);
    document.setDefaultFont(f);
    document.setHtml(grila_.Html());
    document.print(&imprimanta);
}

void frmBife::cmdPrint_Click() {
    if (!m_.Intrebare(IntrebareTiparireBunuri)) return;
    QPrinter imprimanta(QPrinter::HighResolution);
    imprimanta.setDocName(TitluBife);
    if (!AlegeImprimanta(imprimanta)) return;
    Tipareste(imprimanta);
}

void frmBife::cmdPreview_Click() {
    QPrinter imprimanta(QPrinter::HighResolution);
    imprimanta.setDocName(TitluBife);
    QPrintPreviewDialog previzualizare(&imprimanta, this);
    previzualizare.setObjectName(QStringLiteral("frmPrevizualizare"));
    previzualizare.setWindowTitle(TitluBife);
    previzualizare.resize(900, 700);
    connect(&previzualizare, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* p) { Tipareste(*p); });
    ArataModal(previzualizare);
}

void frmBife::cmdOK_Click() {
    std::vector<bool> bifate;
    for (int i = 0; i < lstBife->count(); ++i)
        bifate.push_back(lstBife->item(i)->checkState() == Qt::Checked);
    // With no exclusion row read, Bife stays as it was rather than become an empty text.
    if (!catalog_.Excludere.empty()) stare_.Bife = ImpacheteazaBife(bifate);
    grila_.CopiazaIn(stare_.Bunuri);
    ESTE_OK = true;
    accept();
}
