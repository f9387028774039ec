#pragma once

#include <QChar>
#include <QDate>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVariant>

// Text helpers for names, dates and numbers typed in boxes.

// Only the ASCII digits 0 to 9: other scripts' digits are not part of a CNP.
bool EsteCifra(QChar c);

// Val(text) between jos and sus, both included.
bool IntreLimite(QStringView text, double jos, double sus);

// Two characters: "5" becomes "05", "12" stays; a longer text gives an empty one.
QString Doua(int n);

QString FormatData(const QDate& data); // dd.mm.yyyy, empty for a missing date

// The same text without a string of its own, for lists that write a million dates.
class DataScrisa {
public:
    explicit DataScrisa(const QDate& data);
    QStringView Vedere() const { return lunga_.isNull() ? QStringView(t_, n_) : QStringView(lunga_); }

private:
    char16_t t_[10]{};
    qsizetype n_ = 0;
    QString lunga_; // a year outside 1-9999
};

// The form in which names are searched and compared: lower case, each letter without its marks, so
// that "Șerban", "Şerban" (the cedilla of old files) and "serban" give the same text. Each character
// gives at most one, so the key fits wherever the name fits and the key of a prefix is a prefix of
// the key.
QString CheieCautare(const QString& text);

// The search key as a name's field stores it: none for no name, as the name itself.
QVariant CheieCautareStocata(const QString& nume);

// First character in upper case, the rest as it is.
QString MajusculaPrima(const QString& s);

// Every word (after a blank or a hyphen) with its first letter upper case and the rest lower.
QString NumeProprii(const QString& s);

// "Ianuarie" to "Decembrie"; index 0 is January.
const QStringList& LuniAn();
