#pragma once

#include "store/DateGen.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

class BazaDate;
struct StareCerere;

// The kinds of housing of chkLocuinta, in the order of their Cod (element i is Cod i + 1).
inline const std::array<QString, 7> TipuriLocuinta = {QStringLiteral("Casa cu curte"),
                                                      QStringLiteral("Casa fara curte"),
                                                      QStringLiteral("Apartament la bloc"),
                                                      QStringLiteral("Locuinta sociala"),
                                                      QStringLiteral("Locuinta de serviciu"),
                                                      QStringLiteral("Locuinta de necesitate"),
                                                      QStringLiteral("Institutionalizat/Nu are locuinta")};

// The DateGen list of each cboLocuinta: TipDobandire, RegimJuridLoc, GospodLoc, TipLocuinta,
// TipIncalzire.
inline constexpr std::array<TipDateGen, 5> TipListaLocuinta = {TipDateGen::TipDobandire, TipDateGen::RegimJuridic,
                                                               TipDateGen::Gospodarie, TipDateGen::TipLocuinta,
                                                               TipDateGen::Incalzire};

struct OptiuneLista {
    int DataID = 0;
    QString Continut;

    friend bool operator==(const OptiuneLista&, const OptiuneLista&) = default;
};
// The five lists by element of cboLocuinta, each by Ordine; one query.
std::array<std::vector<OptiuneLista>, 5> CitesteListeLocuinta(BazaDate& db);

// What the housing dialog holds in its controls, named by the controls. A combo holds the
// DataID of its choice, 0 for none; an invalid date is an empty box.
struct DateLocuinta {
    std::array<bool, 7> chkLocuinta{};
    QString txtNrCamere;
    std::array<int, 5> cboLocuinta{};
    std::array<bool, 2> chkPolita{};    // 0 Polita, 1 AcoperaRiscuri
    std::array<QString, 2> txtLocuinta; // 0 SocietatePolita, 1 NrPolita
    std::array<QDate, 2> dtpData;       // DataStartPolita, DataStopPolita

    friend bool operator==(const DateLocuinta&, const DateLocuinta&) = default;
};

// The controls as the dialog opens on the working state; no rooms shows an empty box.
DateLocuinta DateDinStare(const StareCerere& s);

// A box that OK refuses: the message and the object name of the control that takes the focus.
struct RefuzLocuinta {
    QString Mesaj;
    QString Control;

    friend bool operator==(const RefuzLocuinta&, const RefuzLocuinta&) = default;
};

// The number of rooms as the box gives it: the leading number of the text, rounded to a whole
// number half to even; nullopt when that is outside 0 to 255.
std::optional<int> NrCamereDinText(const QString& text);

// OK: copies the controls into the working state (all eight housing marks cleared, then the
// checked ones set; the rest in the order of the dialog) and returns nothing, or refuses and
// leaves the state as it was.
std::optional<RefuzLocuinta> CopiazaInStare(const DateLocuinta& d, StareCerere& s);
