#include "ui/UiFormular.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>

void GrilaEtichete::pe(int coloana, const QString& eticheta, QWidget* w, int latime) const {
    auto* l = parinte ? new QLabel(eticheta, parinte) : new QLabel(eticheta);
    l->setBuddy(w);
    g->addWidget(l, rand, coloana);
    g->addWidget(w, rand, coloana + 1, 1, latime);
}

QLabel* EtichetaValoare(QWidget* parinte, const char* nume, int latimeMinima) {
    auto* l = new QLabel(parinte);
    l->setObjectName(QLatin1String(nume));
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setMinimumWidth(latimeMinima);
    return l;
}

QFrame* LinieOrizontala(QWidget* parinte) {
    auto* linie = new QFrame(parinte);
    linie->setFrameShape(QFrame::HLine);
    linie->setFrameShadow(QFrame::Sunken);
    return linie;
}

std::optional<int> CheieAleasa(const QComboBox* c) {
    return c->currentIndex() < 0 ? std::nullopt : std::optional<int>(c->currentData().toInt());
}

void AlegeCheia(QComboBox* c, const std::optional<int>& cheie) {
    c->setCurrentIndex(cheie ? c->findData(*cheie) : -1);
}
