#pragma once

#include "reports/Catalog.h"

// The list reports of the catalogue. Each reads its rows in one query (a second one for the
// members or the checks where the list shows them) and writes them by the lists' row plan.
namespace Raport {

// The requests of a status group: 0 all, 2 those in payment (2, 6, 7, 8), any other that status.
// The spreadsheet's list has no kind filter, no members and titles of its own.
Grila ListaCereri(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, int stare, bool foaie);
// Children turning 18 in the month after the working one (December: February of the next year).
Grila ListaCopii18(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);
// Children whose code says they were born seven years before the working year, in the working month.
Grila ListaCopii7(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);
// Pupils with (1) or without (0) a school certificate that has not expired by today.
Grila ListaElevi(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, int cuAdeverinta);
// Requests of the month that many months before the working one; the spreadsheet's list, all
// requests filed before the first day of the month five months before.
Grila ListaCereri6Luni(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool foaie);
// The certificates of requests in force that expire in the working month; the window's list marks
// the current certificates first, the spreadsheet's lists them all.
Grila ListaActeExpira(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool foaie);
// Marks, for each person and kind of certificate, the one that expires last (by the counter rule
// the office has always had: person numbers up to the number of certificates). Without
// `stergeMarcileVechi` the marks of other rows stay. One transaction; returns how many rows were marked
// that were not.
qint64 RecalculAdvCurenta(BazaDate& db, bool stergeMarcileVechi = true);
// How many rows RecalculAdvCurenta would mark that are not marked now.
qint64 NumarAdvCurenteNemarcate(BazaDate& db);
// Children (kinship 3, 6-9) or adults (1, 2, 4, 5) of the requests in force, with their age on the
// first day of the next month.
Grila ListaPersoane(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool copii);
// Every titular with the other members, checked against the number of members stored.
Grila SituatieCentralizata(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);
// The delivered template filled with the requests whose status changed in the working month.
Grila BorderouBeneficiari(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);
// The titulars of the requests in force, each followed by the other members.
Grila ListaMembrii(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);

} // namespace Raport
