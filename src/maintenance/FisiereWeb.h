#pragma once

#include "documents/web/PunteWeb.h"
#include "maintenance/Updater.h"

#include <QByteArray>
#include <QString>

// The files of the web request bridge and the font of the printed forms, fetched from the update
// server when the office lacks them or the server's query file has changed.
namespace FisiereWeb {

inline const QString Font = QStringLiteral("MTCORSVA.TTF");
inline const QString NumeFont = QStringLiteral("Monotype Corsiva");

// The server's copies: the page and the font are shared, the query file is the program's own.
QUrl AdresaPagina(const Updater::Mediu& m);
QUrl AdresaInterogari(const Updater::Mediu& m);
QUrl AdresaFont(const Updater::Mediu& m);
// Where the font is kept: Acte/ of the program's data folder.
QString CaleFont(const QString& applicationPath);

// What a download must look like before it replaces anything. A page: an HTML document in UTF-8.
// A query file: statements that only read. A font: a TrueType or OpenType file.
bool PaginaValida(const QByteArray& corp);
bool InterogariValide(const QByteArray& corp);
bool FontValid(const QByteArray& corp);

struct Rezultat {
    bool paginaScrisa = false;
    bool interogariScrise = false;
};

// A missing page is fetched; the query file is fetched when missing or when the server's text,
// its line breaks left aside, differs from the office's. Each is written whole or not at all.
// Waits for the answers: for a thread of its own.
Rezultat Actualizeaza(const Updater::Mediu& m, const PunteWeb::MediuWeb& w);

// The font file, fetched when the office has none; its path when it is there afterwards, else
// empty. Waits for the answer: for a thread of its own.
QString DescarcaFont(const Updater::Mediu& m, const QString& applicationPath);

} // namespace FisiereWeb
