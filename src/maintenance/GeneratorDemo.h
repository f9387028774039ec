#pragma once

// The demo generator, shared by the file that draws the case files and the one that writes them.

#include "cases/CalculCuantum.h"
#include "base/Bani.h"
#include "store/BazaDate.h"
#include "store/InserareInLot.h"
#include "maintenance/DemoTexte.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <map>
#include <unordered_set>
#include <vector>

namespace DemoDate {

inline bool EsteCopil(int rudenie) {
    return rudenie == 3 || (rudenie >= 6 && rudenie <= 10);
}
inline bool InPlata(int stare) {
    return stare == 2 || stare == 6 || stare == 7 || stare == 8;
}
inline QDate IntaiaZi(const QDate& d) {
    return QDate(d.year(), d.month(), 1);
}
inline QVariant TextSauNul(const QString& s) {
    return s.isEmpty() ? QVariant() : QVariant(s);
}

// An IBAN with its real check digits, on a made-up account of a real bank code.
QString Iban(Zar& zar, const char* banca);

class Generator {
public:
    Generator(BazaDate& db, quint64 samanta, const QDate& azi);
    void Lot(int n);

private:
    struct Persoana {
        qint64 id = 0;
        QString nume, prenume, cnp, serie, numar, eliberat, uScolara, clasa;
        bool barbat = false, dizabilitate = false, dim20 = false, dim50 = false, peste20 = false;
        QDate nastere, dataElib;
        int rudenie = 1, ocupatie = 0, studii = 0, stCivila = 0, drAsSociala = 0, tipAct = 2, judet = 0;
        qint64 venit = 0; // hundredths of a leu
        bool nou = false; // joined after the request was filed
    };
    struct Eveniment {
        int actiune;
        QDate dinData;
        Bani cuantum;
    };
    struct Sursa {
        int cod;
        size_t persoana;
        qint64 bani;
    };
    struct Dosar {
        qint64 id = 0;
        int stare = 0, tip = 0, motivSchimbare = 0, motivRespingere = 0;
        QDate dataCerere, dataStare;
        QString motivStare;
        std::vector<Eveniment> evenimente;
        std::vector<Persoana> persoane; // the titular first, then the partner of a couple
        std::vector<Sursa> surse;
        qint64 venitTotal = 0, venitPeMembru = 0, venitVechi = 0; // hundredths of a leu
        QString bife = QStringLiteral("0000000000");
        std::vector<std::pair<int, Bani>> bunuri; // stored NrBifa, quantity
        Bani valoareBunuri;
        bool bloc = false;
        int felLocuinta = 1, camere = 2, suprafata = 50, nrCopii = 0;
        Bani cuantum;
    };

    void citesteReferinte();
    void citesteChei();
    void cerere();
    void cronologie(Dosar& d);
    void familie(Dosar& d);
    Persoana persoana(const QDate& nastere, bool barbat, const QString& nume, int rudenie, const QDate& dataCerere);
    QString cnp(const QDate& nastere, bool barbat, int judet);
    int ocupatieAdult(bool cuBebelus);
    void venituri(Dosar& d);
    void bunuri(Dosar& d);
    void locuinta(Dosar& d);
    void sume(Dosar& d);
    RezultatCuantum cuantumLa(const Dosar& d, const QDate& data, qint64 venitPeMembru, bool cuReduceri) const;
    void scrie(Dosar& d);
    void scrieAdeverinte(const Dosar& d);
    void scrieDispozitii(const Dosar& d);
    void scrieAnchete(const Dosar& d);

    BazaDate& db_;
    Zar zar_;
    const QDate azi_, lunaAzi_, ultimaCerere_;

    // What the database says about the scale, the catalogues and the town.
    ParametriCuantum parametri_;
    std::map<int, Bani> valoriBife_;
    int nrActe_ = 28;
    QString localitate_, judet_, serieJudet_;
    int codJudet_ = 22;
    QStringList functionari_;
    std::vector<int> coduriCnp_;
    std::unordered_set<quint64> cnpFolosite_;

    qint64 cerereID_ = 0, membruID_ = 0, adevID_ = 0, dispozitieID_ = 0, anchetaID_ = 0;
    qint64 nrCerere_ = 0, nrDosar_ = 0, nrDisp_ = 0;

    InserareInLot familii_, membrii_, cereri_, cereriMembrii_, venituri_, bifeText_, locuinte_, adeverinte_, dispozitii_,
        anchete_;
};

} // namespace DemoDate
