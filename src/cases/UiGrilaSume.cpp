#include "cases/UiGrilaSume.h"

#include "base/Mesaje.h"
#include "ui/UiMargine.h"

#include <QHeaderView>
#include <QTableWidget>
#include <memory>

void PregatesteGrilaSume(QTableWidget* g) {
    g->verticalHeader()->setDefaultSectionSize(g->fontMetrics().height() + 8);
    g->setSelectionMode(QAbstractItemView::SingleSelection);
    g->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                       QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    g->setWordWrap(false);
}

void ConecteazaColoanaSume(QTableWidget* g, int coloana, Mesaje& m, std::function<void(size_t, const QString&)> seteaza,
                           std::function<QString(size_t)> text, std::function<void()> dupa) {
    // Set while the cell is rewritten, so that its own change is not read again.
    auto rescrie = std::make_shared<bool>(false);
    QObject::connect(g, &QTableWidget::cellChanged, g,
                     [g, coloana, &m, seteaza = std::move(seteaza), text = std::move(text), dupa = std::move(dupa),
                      rescrie](int rand, int c) {
                         if (*rescrie || c != coloana) return;
                         QTableWidgetItem* celula = g->item(rand, c);
                         if (!celula) return;
                         LaMargine(m, {.fel = Mesaje::Fel::Avertisment},
                                   [&] { seteaza(size_t(rand), celula->text()); });
                         *rescrie = true;
                         celula->setText(text(size_t(rand)));
                         *rescrie = false;
                         dupa();
                     });
}
