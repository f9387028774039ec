#pragma once

#include "shell/Bani.h"

#include <QDate>
#include <QString>
#include <vector>

class BazaDate;

// What the main window shows under the selected request.
struct RandDispozitie {
    qint64 DispozitieID = 0;
    QString NrDisp;
    QDate DataDisp;
    QString TipDecizie; // the action's text
    Bani Cuantum;
    QString Luna, An;
};

namespace PaneluriCerere {

// The request's dispositions, newest first, with the action's text, in one query.
std::vector<RandDispozitie> ListaDispozitii(BazaDate& db, qint64 cerereID);

// "Dispozitiile lui <name>." or empty when there is none.
QString TitluDispozitii(const QString& solicitant, size_t randuri);

// Removes one disposition; false when another computer removed it first.
bool StergeDispozitie(BazaDate& db, qint64 dispozitieID);

// Whether a current certificate of a request in payment expires in the calendar month of `azi`.
bool ActeCareExpira(BazaDate& db, const QDate& azi);

// The two lines of the notice.
QString TextNotificare(const QDate& azi);

} // namespace PaneluriCerere
