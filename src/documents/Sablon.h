#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

class Mesaje;

// A word-processor template, read as bytes (one character for each byte of the file), so that the
// escapes of its diacritics reach the written document untouched.
//
// The head runs from the start of the file to the end of the last marker, which a word processor
// writes at the close of its list-number table; the body is what follows, less the closing "}"
// and the line end of the file. A document is head + merged body + "}".
inline const QByteArray MarcajSablon = QByteArrayLiteral("{\\pntxta )}}");

struct Sablon {
    QByteArray Cap;
    QByteArray Corp;
};

// The template at `cale`, cut at its last marker. Tells the clerk and gives nothing when the file
// is missing or can't be read, and when it holds no marker.
std::optional<Sablon> CitesteSablon(const QString& cale, Mesaje& m);

// head + body + "}": the text of a written document.
QByteArray DocumentRtf(const QByteArray& cap, const QByteArray& corp);

// A value as RTF text that a word processor shows as typed: the RTF specials escaped, a line end
// as a line break, and every letter beyond ASCII as a Unicode escape in a group of its own, with
// its Windows-1250 form for readers that know no Unicode.
QByteArray TextRtf(const QString& valoare);

// The text before the first "(", trimmed; the whole text, trimmed, when it has none.
QString TextPanaLaParanteza(const QString& text);

// The placeholders of one body, replaced in the order of the calls. A field that is null where
// the document names no substitute for it stops the merge, but only when the body asks for it.
class Completare {
public:
    explicit Completare(QByteArray& corp) : corp_(corp) {}

    bool Contine(const char* marcaj) const { return corp_.contains(marcaj); }
    // Every occurrence, case-sensitively.
    void Pune(const char* marcaj, const QString& valoare);
    // A value that may be missing: with none, the merge fails when the body holds the placeholder.
    void Pune(const char* marcaj, const std::optional<QString>& valoare, const QString& camp);

    // The first field that was missing where it was needed; empty while all went well.
    const QString& Esec() const { return esec_; }
    bool Reusita() const { return esec_.isEmpty(); }
    // The clerk's message for the failure.
    QString MesajEsec() const;

private:
    QByteArray& corp_;
    QString esec_;
    QString marcajEsec_;
};

// Writes a document whole or not at all. A file that can't be replaced is most often open in the
// word processor: `mesajDeschis` says so; any other failure names the file and the cause.
bool ScrieDocument(const QString& cale, const QByteArray& continut, const QString& mesajDeschis, Mesaje& m);
