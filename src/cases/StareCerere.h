#pragma once

#include "base/Bani.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

// A certificate of a person on the open request.
struct AdeverintaMembru {
    qint64 AdevID = 0;
    int TipAdeverinta = 0;
    QString NrAdev;
    QDate DataAdeverinta;
    QDate DataDepunerii;
    QDate DataExpAdev;
    int AdvCurenta = 0;

    friend bool operator==(const AdeverintaMembru&, const AdeverintaMembru&) = default;
};

// One person of the open request, with what belongs to that request.
struct MembruCerere {
    qint64 MembruID = 0; // 0 for a person not yet in Membrii
    QString Nume, Prenume, CNP;
    int RudenieID = 0;
    QString Rudenie;
    int TipAct = 0;
    QString SerieBI, NrBI, Eliberat;
    QDate DataElib;
    int CetatenieID = 0;
    QString TaraCetatenie;
    int ResedintaID = 0;
    QString LocResedinta, TaraResedinta;
    int StCivila = 0, Studii = 0, OcupatieID = 0;
    QString Ocupatie;
    int DrAsSociala = 0;
    QDate Data18Ani; // invalid: none
    QString Motiv;
    int ModificatLaSalvare = 0;
    QString MotivStare;
    QDate DataNastere;
    QDate DataStare;
    QString DataNast;
    int LocuitAfara = 0;
    QString Perioada11, TaraAfara11, Perioada22, TaraAfara22;
    int LucreazaAfara = 0;
    QString Perioada1, TaraAfara1, Perioada2, TaraAfara2;
    QString UScolara, LocScoala;
    int VMG = 0, Alocatie = 0, Incalzire = 0;
    int TipIncalzTrecut = 0;
    Bani Venit;
    int Dizabilitate = 0, Repetent = 0, Abandon = 0, Peste20abs = 0;
    int MotivID = 0;
    Bani Suma;
    int TipValuta = 0;
    int StareMembru = 0;
    int Diminuare20 = 0, Diminuare50 = 0;
    std::vector<AdeverintaMembru> Adeverinte;

    // Kinship 3 and 6 to 10 are the children.
    bool EsteCopil() const { return RudenieID == 3 || (RudenieID >= 6 && RudenieID <= 10); }

    friend bool operator==(const MembruCerere&, const MembruCerere&) = default;
};

struct LocuintaSel {
    int NrCamere = 0; // the 16-bit value of the mark
    bool Bifat = false;

    friend bool operator==(const LocuintaSel&, const LocuintaSel&) = default;
};

// Everything of a request that lives in memory while its editor is open. The editor owns one
// and hands it to its sub-dialogs; nothing reaches the database before OK.
struct StareCerere {
    // Empty until the list of persons has been set up once; a request with no person yet has
    // a dimensioned, empty matrix.
    std::optional<std::vector<MembruCerere>> MatriceMembri;
    std::array<Bani, 79> Venituri{};  // by CodVenit - 1
    std::array<Bani, 75> Bunuri{};    // entry i is stored under NrBifa = i + 9
    std::array<LocuintaSel, 8> LocuinteSel{};
    QString Bife, ActeBife;
    int Gospodarire = 0, LunaGospod = 0, GospodLoc = 0, NrCamere = 0, TipDobandire = 0, RegimJuridLoc = 0,
        TipIncalzire = 0, TipLocuinta = 0;
    bool Polita = false, AcoperaRiscuri = false;
    QString SocietatePolita, NrPolita;
    QDate DataStartPolita, DataStopPolita;

    friend bool operator==(const StareCerere&, const StareCerere&) = default;
};
