#pragma once

#include <QByteArray>
#include <QString>

namespace Raport {
class Grila;

// Our grid file (".cel", JSON): the whole model, so that a grid saved and loaded again is the same
// grid. The delivered templates are files of this format.
QByteArray Cel(const Grila& g);
// Eroare, naming what is wrong, for a text that is not such a file.
Grila GrilaDinCel(const QByteArray& json);

void SalveazaCel(const Grila& g, const QString& fisier);
Grila IncarcaCel(const QString& fisier);

} // namespace Raport
