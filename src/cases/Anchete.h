#pragma once

#include "store/DateGen.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// A social inquiry as its editor holds it. Numbers typed by the clerk stay text until the save,
// which reads them with Val.
struct Ancheta {
    qint64 AnchetaID = 0;
    qint64 CerereID = 0;
    QDate DataAncheta; // invalid: the date box is empty
    QString Intocmitor;
    QDate DataExpirarii; // invalid: none
    QString Motiv;
    int NrMembrii = 0;
    int NrCopii = 0;
    std::optional<int> TipLocuinta, RegimJuridic; // DataID of the chosen row; nullopt: none chosen
    QString NrCamere, SuprUtila;
    QString Bunuri, Igiena;
    std::optional<int> TipLocuire, TipDetinere;
    QString Teren, Cladiri, Spatii, AlteBunuri, StareSanatate, Nevoi, Aspecte;
};

enum class ModAncheta { Adaugare = 1, Modificare = 2 };

// How long an inquiry made on a date stays valid, from the ages of the request's members.
struct Expirare {
    QDate DataExpirarii; // invalid: the empty date
    QString Motiv;
    int NrMembrii = 0;
    int NrCopii = 0;
};

// One row of a DateGen list, as a combo shows it.
struct ElementDateGen {
    int DataID = 0;
    QString Continut; // lower case
};

// One row of the inquiries list under the request list, every column as it is shown.
struct RandAncheta {
    qint64 AnchetaID = 0;
    QString Data, NrMembrii, NrCopii, DataExpirarii, Motiv;
};

// The outcome of the checks on OK. `control` names the control that gets the focus.
struct VerificareAncheta {
    bool ok = false;
    bool inchide = false; // the inquiry is gone: the editor closes without saving
    QString control;
};

namespace Anchete {

// The date six months after d, by the calendar's rule: a day past the month's end rolls into the
// next month (31 August gives 2 or 3 March).
QDate SaseLuni(const QDate& d);

// Validity of an inquiry of the request made on d. Members are counted, and children: those not
// yet 18 on d. Valid six months when a child stays under 18 through the whole term; otherwise
// the request is ended and the clerk told so. Birth dates come from the CNPs, whose unreadable
// month or day is reported. An empty d computes nothing and says nothing.
Expirare CalculExpirare(BazaDate& db, qint64 cerereID, const QDate& d, Mesaje& m);

// The checks of OK, in order, stopping at the first failure with its message. A child count that
// differs from the request's only warns. VerificaBD comes first.
VerificareAncheta VerificaControale(BazaDate& db, Mesaje& m, const Ancheta& a, ModAncheta mod, int nrCopiiCerere);

// Writes the inquiry in one transaction, with the expiry and its reason from a fresh
// CalculExpirare (whose message may show again); returns its AnchetaID. Throws Eroare when the
// row to change is gone or a number does not fit its field.
qint64 Salveaza(BazaDate& db, Mesaje& m, Ancheta a, ModAncheta mod);

// The stored inquiry; nullopt when there is none with that key.
std::optional<Ancheta> Citeste(BazaDate& db, qint64 anchetaID);

// The rows of a DateGen list in their Ordine.
std::vector<ElementDateGen> ListaDateGen(BazaDate& db, TipDateGen tip);

// The request's inquiries, newest first.
std::vector<RandAncheta> ListaAnchete(BazaDate& db, qint64 cerereID);
// "Anchetele lui <name>." or empty when there is none.
QString TitluAnchete(const QString& solicitant, size_t randuri);

// What the commands of the inquiries panel check before the editor opens; each says why not.
// cerereID or anchetaID 0 stands for no selected row.
bool PoateAdauga(BazaDate& db, Mesaje& m, qint64 cerereID);
bool PoateModifica(BazaDate& db, Mesaje& m, qint64 anchetaID);

QString IntrebareStergere(const QString& textRand);
// The delete command: the row found by its key, the question, then the delete. textRand is the
// list row's text. True when the row was removed.
bool Sterge(BazaDate& db, Mesaje& m, qint64 anchetaID, const QString& textRand);

} // namespace Anchete
