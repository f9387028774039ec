#include "cases/frmAddVenituri.h"

#include "cases/StareCerere.h"
#include "cases/UiGrilaSume.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int ColoanaSuma = 1;

std::vector<ElementCatalog> catalog(BazaDate& bd, Mesaje& m) {
    // An empty grid copies nothing back, so the incomes stay as they were.
    std::vector<ElementCatalog> c;
    LaMargine(m, [&] { c = CitesteListaVenituri(bd); });
    return c;
}

} // namespace

frmAddVenituri::frmAddVenituri(BazaDate& bd, Mesaje& m, StareCerere& stare, const QString& culoareVenit,
                               QWidget* parinte)
    : QDialog(parinte), m_(m), stare_(stare), grila_(catalog(bd, m), stare.Venituri) {
    setObjectName(QStringLiteral("frmAddVenituri"));
    setWindowTitle(QStringLiteral("Venituri"));
    if (const std::optional<QColor> fundal = CuloareDinText(culoareVenit)) {
        QPalette p = palette();
        p.setColor(QPalette::Window, *fundal);
        p.setColor(QPalette::WindowText, CuloareTextPe(*fundal));
        setPalette(p);
        setAutoFillBackground(true);
    }
    auto* asezare = new QVBoxLayout(this);

    Grid = new QTableWidget(this);
    Grid->setObjectName(QStringLiteral("Grid"));
    Grid->setColumnCount(2);
    Grid->setHorizontalHeaderLabels({QStringLiteral("Tip venit"), QStringLiteral("Suma (lei)")});
    Grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    Grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    Grid->setColumnWidth(ColoanaSuma, 120);
    PregatesteGrilaSume(Grid);
    asezare->addWidget(Grid);

    lblTotalVenituri = new QLabel(this);
    lblTotalVenituri->setObjectName(QStringLiteral("lblTotalVenituri"));
    QFont f = lblTotalVenituri->font();
    f.setBold(true);
    lblTotalVenituri->setFont(f);
    lblTotalVenituri->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    asezare->addWidget(lblTotalVenituri);

    asezare->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Niciunul));

    umple();
    ConecteazaColoanaSume(
        Grid, ColoanaSuma, m_, [this](size_t rand, const QString& text) { grila_.Seteaza(rand, text); },
        [this](size_t rand) { return TextCelula(grila_.Suma(rand)); },
        [this] { lblTotalVenituri->setText(grila_.TextTotal()); });
    resize(860, 600);
}

void frmAddVenituri::umple() {
    const auto& randuri = grila_.Randuri();
    Grid->setRowCount(int(randuri.size()));
    QStringList coduri;
    for (size_t i = 0; i < randuri.size(); ++i) {
        auto* denumire = new QTableWidgetItem(randuri[i].Denumire);
        denumire->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        denumire->setToolTip(randuri[i].Denumire);
        Grid->setItem(int(i), 0, denumire);
        auto* suma = new QTableWidgetItem(TextCelula(grila_.Suma(i)));
        suma->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        Grid->setItem(int(i), ColoanaSuma, suma);
        coduri << QString::number(randuri[i].Nr);
    }
    Grid->setVerticalHeaderLabels(coduri);
    lblTotalVenituri->setText(grila_.TextTotal());
}

void frmAddVenituri::cmdOK_Click() {
    grila_.CopiazaIn(stare_.Venituri);
    ESTE_OK = true;
    accept();
}
