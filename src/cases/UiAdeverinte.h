#pragma once

#include <QDialog>
#include <functional>

class frmAddMembru;

// Gives the certificates grid of the person dialog its commands: add and change through
// frmAddAct, delete with its questions, and the history. `arata` shows each dialog modally.
void ConecteazaAdeverinte(
    frmAddMembru& f, std::function<int(QDialog&)> arata = [](QDialog& d) { return d.exec(); });
