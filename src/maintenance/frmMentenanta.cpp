#include "maintenance/frmMentenanta.h"

#include "base/Mesaje.h"
#include "base/Setari.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using Mentenanta::Unealta;

namespace {

QPushButton* Buton(QWidget* parinte, const char* nume, const QString& text) {
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QString::fromLatin1(nume));
    b->setAutoDefault(false);
    return b;
}

QCheckBox* Bifa(QWidget* parinte, const char* nume, const QString& text) {
    auto* c = new QCheckBox(text, parinte);
    c->setObjectName(QString::fromLatin1(nume));
    return c;
}

// A tool of the old program kept in sight, but it has no table to work on here.
void Inactiv(QWidget* w, const QString& lipsa) {
    w->setEnabled(false);
    w->setToolTip(QStringLiteral("Indisponibil: baza de date nu are %1.").arg(lipsa));
}

// The clerk's messages of a tool that may work for seconds: the busy cursor shows while it works, and the
// ordinary one while a message waits for him.
class MesajeOcupat : public Mesaje {
public:
    explicit MesajeOcupat(Mesaje& m) : m_(m) { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~MesajeOcupat() override { QApplication::restoreOverrideCursor(); }
    MesajeOcupat(const MesajeOcupat&) = delete;
    MesajeOcupat& operator=(const MesajeOcupat&) = delete;

    void Informatie(const QString& text, const QString& titlu = {}) override {
        Liber([&] { m_.Informatie(text, titlu); });
    }
    void Avertisment(const QString& text, const QString& titlu = {}) override {
        Liber([&] { m_.Avertisment(text, titlu); });
    }
    void Critic(const QString& text, const QString& titlu = {}) override {
        Liber([&] { m_.Critic(text, titlu); });
    }
    bool Intrebare(const QString& text, const QString& titlu = {}, bool implicitDa = true) override {
        bool r = false;
        Liber([&] { r = m_.Intrebare(text, titlu, implicitDa); });
        return r;
    }
    QString Intrare(const QString& text, const QString& titlu = {}, const QString& implicit = {}) override {
        QString r;
        Liber([&] { r = m_.Intrare(text, titlu, implicit); });
        return r;
    }

private:
    template <class F> void Liber(F&& f) {
        QApplication::restoreOverrideCursor();
        f();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Mesaje& m_;
};

} // namespace

frmMentenanta::frmMentenanta(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setObjectName(QStringLiteral("frmMentenanta"));
    setWindowTitle(QStringLiteral("Mentenanta"));
    auto* asezare = new QVBoxLayout(this);

    lblAtentie = new QLabel(QStringLiteral("Atentie! In aceata fereastra lucreaza doar personalul Morvante"), this);
    lblAtentie->setObjectName(QStringLiteral("lblAtentie"));
    QFont f = lblAtentie->font();
    f.setBold(true);
    lblAtentie->setFont(f);
    lblAtentie->setStyleSheet(QStringLiteral("color: #b00000"));
    asezare->addWidget(lblAtentie);

    auto* active = new QGroupBox(this);
    auto* g = new QGridLayout(active);
    cmdCereri = Buton(active, "cmdCereri", QStringLiteral("Genereaza cereri 1 nov 2014"));
    chkVeche = Bifa(active, "chkVeche", QStringLiteral("Pastreaza data veche"));
    cmdRecalculare = Buton(active, "cmdRecalculare",
                           QStringLiteral("DataStare=DataCerere pt cele din luna curenta, aprobate (noi)"));
    chkSuprascrieDataStare = Bifa(active, "chkSuprascrieDataStare", QStringLiteral("Suprascrie DataStare"));
    cmdRecalculStare = Buton(active, "cmdRecalculStare", QStringLiteral("Modifica Stare = 3 (Respinse)"));
    cmdRecalculRudenie = Buton(active, "cmdRecalculRudenie",
                               QStringLiteral("Modifica Rudenie=4 (elev vechi) la Rudenie=3 (in rpg nou)"));
    reCalculActe = Buton(active, "reCalculActe", QStringLiteral("Recalcul Acte"));
    Command3 = Buton(active, "Command3", QStringLiteral("Incarca lista bunuri din bife.txt"));
    g->addWidget(cmdCereri, 0, 0);
    g->addWidget(chkVeche, 0, 1);
    g->addWidget(cmdRecalculare, 1, 0);
    g->addWidget(chkSuprascrieDataStare, 1, 1);
    g->addWidget(cmdRecalculStare, 2, 0);
    g->addWidget(cmdRecalculRudenie, 3, 0);
    g->addWidget(reCalculActe, 4, 0);
    g->addWidget(Command3, 5, 0);
    asezare->addWidget(active);

    auto* vechi = new QGroupBox(this);
    auto* v = new QGridLayout(vechi);
    cmdNrCerere = Buton(vechi, "cmdNrCerere", QStringLiteral("Afiseaza Numere cerere nealocate"));
    lblNrCerere = new QLabel(QStringLiteral("Numere cerere nealocate"), vechi);
    lblNrCerere->setObjectName(QStringLiteral("lblNrCerere"));
    txtNrCerere = new QLineEdit(vechi);
    txtNrCerere->setObjectName(QStringLiteral("txtNrCerere"));
    txtNrCerere->setReadOnly(true);
    cmdExecuta = Buton(vechi, "cmdExecuta", QStringLiteral("Executa"));
    cmdImport = Buton(vechi, "cmdImport", QStringLiteral("Import Date Campia"));
    Command1 = Buton(vechi, "Command1", QStringLiteral("Command1"));
    for (QWidget* w : {static_cast<QWidget*>(cmdNrCerere), static_cast<QWidget*>(lblNrCerere),
                       static_cast<QWidget*>(txtNrCerere), static_cast<QWidget*>(cmdExecuta)})
        Inactiv(w, QStringLiteral("tabela Sesiuni"));
    Inactiv(cmdImport, QStringLiteral("tabela MAR_09"));
    Inactiv(Command1, QStringLiteral("fisierul BazaGaz"));
    v->addWidget(cmdNrCerere, 0, 0);
    v->addWidget(lblNrCerere, 0, 1);
    v->addWidget(txtNrCerere, 0, 2);
    v->addWidget(cmdExecuta, 1, 0);
    v->addWidget(cmdImport, 1, 1);
    v->addWidget(Command1, 1, 2);
    asezare->addWidget(vechi);

    auto* jos = new QHBoxLayout;
    jos->addStretch();
    cmdExit = Buton(this, "cmdExit", QStringLiteral("I&esire"));
    jos->addWidget(cmdExit);
    asezare->addLayout(jos);

    const std::pair<QPushButton*, Unealta> unelte[] = {
        {cmdCereri, Unealta::Cereri2014},   {cmdRecalculare, Unealta::DataStare},
        {cmdRecalculStare, Unealta::Stare}, {cmdRecalculRudenie, Unealta::Rudenie},
        {reCalculActe, Unealta::Acte},      {Command3, Unealta::Bife}};
    for (const auto& [buton, u] : unelte)
        connect(buton, &QPushButton::clicked, this, [this, u = u] { Ruleaza(u); });
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
}

void frmMentenanta::Ruleaza(Unealta u) {
    if (!VerificaBD(p_.bd, m_)) return;
    Mentenanta::Optiuni o;
    o.luna = p_.setari.LunaSetata;
    o.an = p_.setari.AnSetat;
    o.suprascrieDataStare = chkSuprascrieDataStare->isChecked();
    o.pastreazaDataCerere = chkVeche->isChecked();
    o.caleBD = p_.setari.CaleBD.isEmpty() ? p_.bd.locatie().caleBD : p_.setari.CaleBD;
    // The error is shown once the cursor is back.
    LaMargine(m_, [&] {
        MesajeOcupat ocupat(m_);
        Mentenanta::Ruleaza(p_.bd, ocupat, u, o);
    });
}
