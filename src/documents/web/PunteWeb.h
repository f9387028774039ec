#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>

class BazaDate;
class Mesaje;

// The bridge to the local page that prints the legal forms: the statements of the query file
// run for one request, their rows go hex-encoded into a JavaScript file beside the page, and the
// page is opened on the document asked for.
namespace PunteWeb {

inline const QString FisierInterogari = QStringLiteral("Acte/sql_cerere.txt");
inline const QString FolderPagina = QStringLiteral("web");
inline const QString Pagina = QStringLiteral("StartCerereWeb.html");
inline const QString FisierDate = QStringLiteral("vb6_output.js");
inline const QString MarcajCerere = QStringLiteral("${CerereID}");

// The variant of the program; its number picks the settings file that the page is told about.
inline const QString NumeProgram = QStringLiteral("Alocatii-207");

// The documents of the page, as the print commands name them.
inline const QString DocCerere = QStringLiteral("cerere");
inline const QString DocCerere1a = QStringLiteral("cerere_1a");
inline const QString DocAncheta = QStringLiteral("ancheta");

// Where the bridge reads and writes.
struct MediuWeb {
    QString fisierInterogari; // the statements
    QString pagina;           // the page; the data file goes beside it, where the page loads it from
    QString folderProgram;    // where the settings file is looked for
    QString numeProgram = NumeProgram;
    QString serverCerere; // ServerCerere; blank gives the default address

    // The program's data folder: Acte/sql_cerere.txt, web/StartCerereWeb.html and setari207.ini in it.
    static MediuWeb DinApplicationPath(const QString& applicationPath, const QString& serverCerere);
    QString FisierIesire() const;
};

// The Windows-1250 bytes of the trimmed text as hex pairs separated by a blank: "AB" gives "41 42".
// The comma-below letters ș ț Ș Ț go as their cedilla twins; a character that the code page lacks
// goes as "?" (3F).
QString HexText(const QString& s);

// One statement of the query file and the line (from 1) where it starts.
struct InterogareFisier {
    QString text;
    int linie = 1;
    bool operator==(const InterogareFisier&) const = default;
};

// The statements of the query file's text, split at the ";" that end them; a ";" or "--" inside a
// quoted text or name does not count, and comments ("--" to the end of the line, "/* */") are left
// out. Blank statements are dropped.
std::vector<InterogareFisier> Interogari(const QString& continutFisier);

// The first statement that does not only read (a SELECT or WITH); nothing when all of them read.
std::optional<InterogareFisier> PrimaCareNuCiteste(const std::vector<InterogareFisier>& interogari);

// The settings file that the page is told about: a program name holding "318" picks setari318.ini,
// else one holding "207" picks setari207.ini, in `folderProgram`; empty for neither or for a
// missing file.
QString FisierSetariPagina(const QString& numeProgram, const QString& folderProgram);

// "dct:" + DataCerereTiparita + ";nct:" + NrCerereTiparita + ";", read fresh from [Generale] of that
// file; nothing when there is no such file.
std::optional<QString> TextSetari(const QString& numeProgram, const QString& folderProgram);

// The line that tells the page its document and the request server.
QString LiniePrefix(const QString& document, const QString& serverCerere);

// The JSON array of the statements' rows, one array per statement, every value hex-encoded,
// dates as dd.mm.yyyy, nulls as "". Each `${CerereID}` is a parameter bound to `cerereID`.
// The file is the town hall's to edit, so it only ever reads: a statement that is not a SELECT is
// refused before anything runs, and all of them run in a read-only transaction that is rolled
// back. Throws Eroare naming the line of a refused or failed statement.
QString JsonInterogari(BazaDate& db, const QString& continutFisier, qint64 cerereID);

// Runs the statements and writes vb6_output.js: the settings line (with `cuSetari`, when the
// settings file is found), the prefix line when not blank, "VB6_OUTPUT=" + the JSON. Returns the
// JSON; after a failure, told under "Eroare Sql2Json", an empty text and no file written.
QString Sql2Json(BazaDate& db, const QString& sql, qint64 cerereID, bool cuSetari, const QString& prefix,
                 const MediuWeb& mediu, Mesaje& m);

// What opens the page: the browser and its arguments, or the desktop's default browser when
// `browser` is empty.
struct PaginaWeb {
    QUrl adresa; // the page, with the document as fragment
    QString browser;
    QStringList argumente;
};

// Writes the data of request `cerereID` (0: the blank forms) for `document` and tells how to open
// the page; nothing when the query file is missing or empty, a statement fails (told) or the
// page is missing (told). `aplicatie` asks for a browser window without its bars when one is
// installed.
std::optional<PaginaWeb> StartCerereWeb(BazaDate& db, const MediuWeb& mediu, qint64 cerereID, const QString& document,
                                        bool aplicatie, Mesaje& m);

// Starts the browser; false when it could not be started.
bool DeschidePagina(const PaginaWeb& p);

} // namespace PunteWeb
