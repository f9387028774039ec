#include "cases/frmAddMembru.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"

frmAddMembru::frmAddMembru(BazaDate& bd, Mesaje& m, StareCerere& stare, const ContextPersoana& c, QWidget* parinte)
    : QDialog(parinte), bd_(bd), m_(m), stare_(stare), c_(c) {
    setObjectName(QStringLiteral("frmAddMembru"));
    setWindowTitle(c_.Mod == 2 ? QStringLiteral("Modificare membru") : QStringLiteral("Adaugare membru"));
}

DatePersoana frmAddMembru::Citeste() const {
    DatePersoana d;
    d.MembruID = membruID_;
    return d;
}

void frmAddMembru::Scrie(const DatePersoana& d) {
    membruID_ = d.MembruID;
}

void frmAddMembru::cboCNP_LostFocus() {}

void frmAddMembru::cmdOK_Click() {
    try {
        const RezultatOk r = OkPersoana(Citeste(), c_, stare_, m_);
        if (!r.Focus.isEmpty()) return;
        IndexScris = r.Index;
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    ESTE_OK = true;
    accept();
}

frmMotiv::frmMotiv(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmMotiv"));
    setWindowTitle(QStringLiteral("Motivul iesirii"));
}

void frmMotiv::cmdOK_Click() {}
