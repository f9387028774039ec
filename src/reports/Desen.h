#pragma once

#include <QPageLayout>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

class QFont;
class QPagedPaintDevice;
class QPainter;
class QRectF;

// One painter draws the grid onto pages for the preview, the printer and the pdf alike: the paper,
// the orientation and the margins of the grid's page set-up; the content rows in order, a row that
// does not fit moving to the next page; merged cells, borders, fonts, alignment and wrap.
namespace Raport {
class Grila;
struct Pagina;

struct Aliniere;
struct Celula;
struct Font;

QPageLayout AsezarePagina(const Pagina& p);

// The grid's alignment and font as Qt draws them, for the pages and the view alike.
int AliniereQt(const Aliniere& a);
QFont FontQt(const Font& f);
// The lines a cell carries on its sides and across it, over its rectangle.
void DeseneazaLinii(QPainter& p, const Celula& c, const QRectF& zona);

// A grid wider than the page's printable width (in the grid's pixels) is drawn smaller, so that
// every column stays on the page: the factor, 1 when it fits.
double Micsorare(const Grila& g, double latimeUtila);

// The first and last content row of each page, for a printable height in the grid's pixels. A row
// taller than a page stands alone on its page.
std::vector<std::pair<int, int>> Pagini(const Grila& g, double inaltimeUtila);

// Draws rows `primul` to `ultimul` from the painter's origin; `scara` device pixels per grid pixel.
void DeseneazaPagina(QPainter& p, const Grila& g, int primul, int ultimul, double scara);

// Every page (or only page `doar`, from 1) onto a printer or a pdf, laid out by the grid's page
// set-up. Returns the number of pages of the grid.
int Deseneaza(QPagedPaintDevice& d, const Grila& g, std::optional<int> doar = std::nullopt);

// How many pages the grid takes on its paper.
int NumarPagini(const Grila& g);

// The grid as a pdf. Written whole or not at all.
void ScriePdf(const Grila& g, const QString& fisier);

} // namespace Raport
