#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

// The address of the request server when the settings file leaves `ServerCerere` blank.
inline const QString ServerCerereImplicit = QStringLiteral("https://cereri.ferolanta.ro/");

// The per-computer choices of the settings file, one member per key, under the key's name
// (`Parola` is key `pass`). The initializers are the defaults. The 8-bit keys are ints kept in 0..255.
struct Setari {
    // [Generale]
    QString CaleBD;
    QString Parola;
    bool OpresteActualizareAutomata = false;
    // The folder of the update server; blank: the program never looks for a newer build.
    QString ServerActualizare;
    // [Oblig]
    int NrCaractSerie = 0;
    bool ObligEmailPrimarie = false;
    // [Ordonari]
    QString NrCerereAnexa3;
    // [Fonturi]
    int FontSize0 = 10;
    QString FontName0 = QStringLiteral("Times New Roman");
    bool FontB0 = false;
    bool FontI0 = false;
    bool FontU0 = false;
    // [Afisari]
    bool AfisCereri = true;
    // [Fisiere]
    QString Anexa3 = QStringLiteral("Centralizator.xls");
    QString Anexa4 = QStringLiteral("Statistica.xls");
    QString StatPlata = QStringLiteral("StatPlata.xls");
    // [Generale]
    bool Anexa2ExportWord = false;
    QString StrSat;
    bool AfisSerieStatPlata = false;
    bool ReteaSetat = false;
    bool Motiv = false;
    // [Borderou], [Raport]
    int HeightRowBorderou = 36;
    int HeightRowRaport = 36;
    // [App]
    int AppWord = 1;
    // [Setari]
    int LunaSetata = 1;
    std::int16_t AnSetat = 2013;
    // [Generale]
    int LoadTipCerere = 0;
    int DataCerereTiparita = 1;
    // [Cereri]
    bool Cerere13Pag = false;
    bool Ancheta14Pag = false;
    // [Generale]
    bool NotificareActe = false;
    // [Cereri]
    bool AngajamentPlata = false;
    bool CertificarePrimar = false;
    // [Generale]
    bool NrCerereInAncheta = false;
    bool NrCerereTiparita = false;
    QString ServerCerere = ServerCerereImplicit;
    QString CuloareVenit;
    // [Cale]
    QString CaleWord;
    // Where the reports' files go; blank: the desktop.
    QString FolderExport;

    friend bool operator==(const Setari&, const Setari&) = default;
};

// Reads the settings file once, at start. The keys FontSize0, FontName0, Anexa3, Anexa4, StatPlata,
// HeightRowBorderou, HeightRowRaport, AppWord and DataCerereTiparita that read as 0 or empty get their
// default, which is also written to the file at once. A value outside its key's range gives the default
// in memory and leaves the file as it is. `CaleBD` is given as stored: its empty rule belongs to start-up.
// Throws Eroare when the file can't be read or a default can't be written.
// With scrieImplicite false the file is only read: the command-line tool must not change the
// settings of the office it inspects.
// A working month that an amount may be computed for: a month 1-12 of a year 2000-2100.
inline constexpr int AnLucruMinim = 2000, AnLucruMaxim = 2100;
inline bool LunaLucruValida(int luna, int an) {
    return luna >= 1 && luna <= 12 && an >= AnLucruMinim && an <= AnLucruMaxim;
}

Setari IncarcaSetari(const QString& fisierIni, bool scrieImplicite = true);

// One key, written at once by the dialog that changes it.
void ScrieSetare(const QString& fisierIni, const QString& sectiune, const QString& cheie, const QString& valoare);

// What the options dialog stores, in the order of the file's keys. Flags as 0/1, the font flags as
// 255/0; `ServerCerere` equal to the default is left blank so that the file never pins it.
void ScrieOptiuni(const QString& fisierIni, const Setari& s);

// The options dialog's controls, as plain values.
struct ValoriOptiuni {
    bool OpresteActualizareAutomata = false;
    QString NrCerereAnexa3; // the selected text; empty when nothing is selected
    int FontSize0 = 10;
    QString FontName0;
    bool FontB0 = false;
    bool FontI0 = false;
    bool FontU0 = false;
    bool AfisCereri = true;
    QString Anexa3;
    QString Anexa4;
    QString StatPlata;
    bool Anexa2ExportWord = false;
    QString StrSat;
    bool AfisSerieStatPlata = false;
    bool ReteaSetat = false;
    bool Motiv = false;
    QString HeightRowBorderou; // as typed
    QString HeightRowRaport;   // as typed
    int AppWord = 1;
    int DataCerereTiparita = 1;
    bool Cerere13Pag = false;
    bool Ancheta14Pag = false;
    bool NotificareActe = false;
    bool AngajamentPlata = false;
    bool CertificarePrimar = false;
    bool NrCerereInAncheta = false;
    bool NrCerereTiparita = false;
    QString ServerCerere;
    QString ServerActualizare;
    QString CuloareVenit;
    QString FolderExport;
};

// The controls as the settings show them when the dialog opens.
ValoriOptiuni ValoriDinSetari(const Setari& s);

// The refusal text for a report font size, or nothing when the size is allowed (2 to 72).
std::optional<QString> VerificaMarimeFont(int marime);
// The dialog checks nothing but the font size.
std::optional<QString> VerificaOptiuni(const ValoriOptiuni& v);

// The settings after the dialog's OK. Typed numbers follow the leading-number rule; a number outside
// its key's range gives the key's default. A blank server address gives the default one.
Setari AplicaOptiuni(Setari s, const ValoriOptiuni& v);

// The folder the reports' files are written to: the chosen one, else the desktop.
QString FolderExportEfectiv(const Setari& s);

// The sample of the report font: name, size, and ", B", ", I", ", U" for the styles set.
QString TextMostraFont(const QString& nume, int marime, bool b, bool i, bool u);

// `CuloareVenit` keeps a colour as decimal red + green*256 + blue*65536.
QString CuloareInText(const QColor& c);
// Anything but a whole number in 0..0xFFFFFF is no colour.
std::optional<QColor> CuloareDinText(const QString& text);
// The text colour that stays readable on a chosen background: white on a dark one, else black.
QColor CuloareTextPe(const QColor& fundal);

// The items of the dialog's combos: the value stored and the text shown.
struct ElementCombo {
    int valoare;
    QString text;
};
// cboNrCerereAnexa3 stores its text; the value is the position.
const std::vector<ElementCombo>& ListaNrCerereAnexa3();
const std::vector<ElementCombo>& ListaNrCerere();
const std::vector<ElementCombo>& ListaAppWord();
const std::vector<ElementCombo>& ListaDataCerere();
