#pragma once

#include <QString>
#include <functional>

class QBoxLayout;
class QDialog;
class QEvent;
class QHBoxLayout;
class QObject;
class QPushButton;
class QWidget;

// A named button added at the end of `rand`, which leaves the Enter key to the dialog's default
// button even when it has the focus.
QPushButton* Buton(QWidget* parinte, QBoxLayout* rand, const char* nume, const QString& text);

// Which button of an OK / Renunta row the Enter key presses.
enum class EnterOK {
    Implicit,  // OK, wherever the focus is
    Focalizat, // left to the dialog: a button takes Enter while it has the focus
    Niciunul,  // neither: the dialog uses Enter for something else
};

// The OK / Renunta row (cmdOK, cmdCancel) of a dialog: OK runs `laOK`, Renunta runs `laRenunta`,
// by default closing the dialog rejected. The buttons stand at the right end unless `laDreapta` is
// false. The caller places the row.
QHBoxLayout* RandOkRenunta(QDialog* d, QPushButton*& ok, QPushButton*& renunta, std::function<void()> laOK,
                           EnterOK enter = EnterOK::Implicit, bool laDreapta = true,
                           std::function<void()> laRenunta = nullptr);

// What an editor does with the checks made on OK: closes rejected when `inchide` says its row is
// gone, or puts the focus on the control named `control` when not `ok`. True when it may write.
bool UrmeazaVerificarea(QDialog* d, bool ok, bool inchide, const QString& control);

// For the event filter of a form where Enter moves on as Tab does: true when `e` is Enter pressed
// in `obiect`, which the form then answers with focusNextChild() and by eating the event. A text
// box taking the focus selects its text.
bool EnterCaTab(QObject* obiect, QEvent* e);
