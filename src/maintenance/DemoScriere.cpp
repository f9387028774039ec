#include "base/Eroare.h"
#include "base/Texte.h"
#include "cases/Cnp.h"
#include "maintenance/GeneratorDemo.h"

// How a drawn case file is written: the request with its family and persons, then its certificates,
// dispositions and inquiries, each through the statements prepared once for the whole run.

namespace DemoDate {

void Generator::scrie(Dosar& d) {
    const Texte& t = texte();
    const Persoana& titular = d.persoane[0];

    const qint64 nrDosar = nrDosar_++;
    InserareInLot& f = familii_;
    f.Leaga(d.id).Leaga(judet_).Leaga(localitate_).Leaga(zar_.Unul(t.strazi));
    if (d.bloc) {
        f.Leaga(QString::number(zar_.Intre(1, 60)))
            .Leaga(zar_.Sansa(50) ? QStringLiteral("%1").arg(QChar(u'A' + zar_.Intre(0, 3)))
                                  : QString::number(zar_.Intre(1, 4)))
            .Leaga(QString::number(zar_.Intre(1, 80)));
    } else {
        QString nr = QString::number(zar_.Intre(1, 250));
        if (zar_.Sansa(8)) nr += QChar(u'A' + zar_.Intre(0, 2));
        f.Leaga(nr).Leaga(QVariant()).Leaga(QVariant());
    }
    f.Leaga(QStringLiteral("%1/%2").arg(nrDosar).arg(d.dataCerere.year() % 100, 2, 10, QLatin1Char('0')))
        .Leaga(nrDosar);
    if (d.bloc) {
        const int etaj = zar_.Intre(0, 10);
        f.Leaga(QStringLiteral("%1%2").arg(QChar(u'A' + zar_.Intre(0, 12))).arg(zar_.Intre(1, 20)))
            .Leaga(etaj == 0 ? QStringLiteral("P") : QString::number(etaj));
    } else {
        f.Leaga(QVariant()).Leaga(QVariant());
    }
    f.Leaga(zar_.Sansa(10) ? QVariant(QStringLiteral("02%1").arg(zar_.Cifre(8))) : QVariant())
        .Leaga(zar_.Sansa(85) ? QVariant(QStringLiteral("07%1%2").arg(zar_.Intre(2, 7)).arg(zar_.Cifre(7)))
                              : QVariant())
        .Executa();

    for (const Persoana& p : d.persoane)
        membrii_.Leaga(p.id)
            .Leaga(p.nume)
            .Leaga(p.prenume)
            .Leaga(p.cnp)
            .Leaga(p.serie)
            .Leaga(p.numar)
            .Leaga(p.tipAct)
            .Leaga(p.eliberat)
            .Leaga(p.dataElib)
            .Leaga(p.dizabilitate ? 1 : 0)
            .Leaga(CheieCautareStocata(p.nume))
            .Leaga(CheieCautareStocata(p.prenume))
            .Executa();

    const bool cont = zar_.Sansa(d.dataCerere.year() >= 2018 ? 60 : 35);
    const Banca& banca = Banci[zar_.Intre(0, int(std::size(Banci)) - 1)];
    const bool polita = zar_.Sansa(25);
    const QDate startPolita = zar_.ZiIntre(d.dataCerere.addYears(-1), d.dataCerere);
    const bool vmg = zar_.Sansa(15), inc = zar_.Sansa(35);
    QString acte;
    for (int i = 0; i < nrActe_; ++i)
        acte += i < 2 || zar_.Sansa(55) ? QLatin1Char('1') : QLatin1Char('0');
    const QString numeTitular = titular.nume + QLatin1Char(' ') + titular.prenume;
    cereri_
        .Leaga(d.id)                                                                        // CerereID
        .Leaga(d.id)                                                                        // FamilieID
        .Leaga(nrCerere_++)                                                                 // NrCerere
        .Leaga(d.dataCerere)                                                                // DataCerere
        .Leaga(titular.id)                                                                  // MembruID1
        .Leaga(d.tip == 1 ? QVariant(d.persoane[1].id) : QVariant())                        // MembruID2
        .Leaga(d.stare)                                                                     // Stare
        .Leaga(int(d.persoane.size()))                                                      // NrMembrii
        .Leaga(d.nrCopii)                                                                   // NrCopii
        .Leaga(d.cuantum)                                                                   // Cuantum
        .Leaga(TextSauNul(d.motivStare))                                                    // MotivStare
        .Leaga(d.dataStare)                                                                 // DataStare
        .Leaga(Bani::DinUnitati(d.venitTotal * 100))                                        // VenitTotal
        .Leaga(Bani::DinUnitati(d.venitPeMembru * 100))                                     // VenitpeMembru
        .Leaga(zar_.Ponderat({{3, 95}, {2, 3}, {1, 2}}))                                    // ReprLegal
        .Leaga(cont ? 2 : 1)                                                                // ModPlata
        .Leaga(cont ? QVariant(numeTitular.left(34)) : QVariant())                          // NumeTitularCont
        .Leaga(cont ? QVariant(Iban(zar_, banca.cod)) : QVariant())                         // Cont
        .Leaga(cont ? QVariant(QString::fromUtf8(banca.nume)) : QVariant())                 // Banca
        .Leaga(0)                                                                           // Gospodarire
        .Leaga(zar_.Sansa(85) ? 1 : 2)                                                      // GospodLoc
        .Leaga(zar_.Ponderat({{1, 45}, {2, 10}, {3, 8}, {4, 10}, {5, 20}, {6, 5}, {7, 2}})) // RegimJuridLoc
        .Leaga(d.bloc ? zar_.Ponderat({{1, 40}, {2, 50}, {4, 10}})
                      : zar_.Ponderat({{2, 30}, {3, 60}, {4, 8}, {5, 2}}))                         // TipIncalzire
        .Leaga(zar_.Intre(1, 2))                                                                   // TipLocuinta
        .Leaga(d.bife)                                                                             // Bife
        .Leaga(d.tip)                                                                              // TipCerere
        .Leaga(0)                                                                                  // LuniRetro
        .Leaga(vmg)                                                                                // Vmg
        .Leaga(inc)                                                                                // Inc
        .Leaga(false)                                                                              // Supl
        .Leaga(vmg)                                                                                // Lege416
        .Leaga(QStringLiteral("0%1").arg(inc && zar_.Sansa(50) ? 1 : 0) + QLatin1Char('0'))        // A1Solicita
        .Leaga(acte)                                                                               // ActeBife
        .Leaga(zar_.Ponderat({{1, 25}, {2, 35}, {3, 5}, {4, 15}, {5, 8}, {6, 5}, {7, 4}, {8, 3}})) // TipDobandire
        .Leaga(polita)                                                                             // Polita
        .Leaga(polita ? QVariant(zar_.Unul(t.asiguratori)) : QVariant())                           // SocietatePolita
        .Leaga(polita ? QVariant(QStringLiteral("PAD%1").arg(zar_.Cifre(9))) : QVariant())         // NrPolita
        .Leaga(polita ? QVariant(startPolita) : QVariant())                                        // DataStartPolita
        .Leaga(polita ? QVariant(startPolita.addYears(1).addDays(-1)) : QVariant())                // DataStopPolita
        .Leaga(polita)                                                                             // AcoperaRiscuri
        .Leaga(d.camere)                                                                           // NrCamere
        .Executa();

    for (const Persoana& p : d.persoane) {
        const bool copil = EsteCopil(p.rudenie);
        cereriMembrii_
            .Leaga(d.id)                                                                          // CerereID
            .Leaga(p.id)                                                                          // MembruID
            .Leaga(p.rudenie)                                                                     // RudenieID
            .Leaga(p.ocupatie)                                                                    // OcupatieID
            .Leaga(copil ? QVariant(ZiuaMajoratului(p.nastere)) : QVariant())                         // Data18Ani
            .Leaga(copil ? QVariant(QStringLiteral("implinirea varstei de 18 ani")) : QVariant()) // Motiv
            .Leaga(1)                                                                             // CetatenieID
            .Leaga(1)                                                                             // ResedintaID
            .Leaga(p.stCivila ? QVariant(p.stCivila) : QVariant())                                // StCivila
            .Leaga(p.studii)                                                                      // Studii
            .Leaga(p.drAsSociala)                                                                 // DrAsSociala
            .Leaga(p.ocupatie == 12 && !copil)                                                    // LucreazaAfara
            .Leaga(TextSauNul(p.uScolara))                                                        // UScolara
            .Leaga(TextSauNul(p.clasa))                                                           // Clasa
            .Leaga(p.venit > 0)                                                                   // RealizeazaVenit
            .Leaga(p.nou ? QVariant(p.nastere.addDays(zar_.Intre(5, 25))) : QVariant())           // DataStare
            .Leaga(p.nou ? QVariant(1) : QVariant())                                              // MotivID
            .Leaga(p.nou ? 2 : 1)                                                                 // StareMembru
            .Leaga(p.dim20 ? 1 : 0)                                                               // Diminuare20
            .Leaga(p.dim50 ? 1 : 0)                                                               // Diminuare50
            .Leaga(false)                                                                         // LocuitAfara
            .Leaga(Bani::DinUnitati(p.venit * 100))                                               // Venit
            .Leaga(vmg ? 1 : 0)                                                                   // VMG
            .Leaga(copil ? 1 : 0)                                                                 // Alocatie
            .Leaga(inc ? 1 : 0)                                                                   // Incalzire
            .Leaga(p.uScolara.isEmpty() ? QVariant() : QVariant(localitate_))                     // LocScoala
            .Leaga(0)                                                                             // Repetent
            .Leaga(0)                                                                             // Abandon
            .Leaga(p.peste20 ? 1 : 0)                                                             // Peste20abs
            .Executa();
    }

    std::map<int, qint64> peCod;
    for (const Sursa& s : d.surse)
        peCod[s.cod] += s.bani;
    for (const auto& [cod, bani] : peCod)
        venituri_.Leaga(d.id).Leaga(cod).Leaga(Bani::DinUnitati(bani * 100)).Executa();

    for (const auto& [nrBifa, cantitate] : d.bunuri)
        bifeText_.Leaga(d.id).Leaga(nrBifa).Leaga(cantitate).Executa();

    switch (zar_.Ponderat({{0, 10}, {1, 85}, {2, 5}})) {
    case 2:
        locuinte_.Leaga(d.id)
            .Leaga(d.felLocuinta == 1 ? 2 : 1)
            .Leaga(1)
            .Leaga(QVariant(double(zar_.Intre(12, 30))))
            .Executa();
        [[fallthrough]];
    case 1:
        locuinte_.Leaga(d.id).Leaga(d.felLocuinta).Leaga(d.camere).Leaga(QVariant(double(d.suprafata))).Executa();
        break;
    default:
        break;
    }

    scrieAdeverinte(d);
    scrieDispozitii(d);
    scrieAnchete(d);
}

void Generator::scrieAdeverinte(const Dosar& d) {
    struct Candidat {
        size_t persoana;
        int tip, luni;
    };
    std::vector<Candidat> candidati;
    for (size_t i = 0; i < d.persoane.size(); ++i) {
        const Persoana& p = d.persoane[i];
        if (p.nastere > d.dataStare) continue;
        if (EsteCopil(p.rudenie)) {
            if (p.ocupatie >= 3) candidati.push_back({i, 3, 6});
            continue;
        }
        switch (p.ocupatie) {
        case 1:
            candidati.push_back({i, 6, 3});
            break;
        case 2:
            candidati.push_back({i, 5, 12});
            break;
        case 3:
            candidati.push_back({i, 1, 3});
            break;
        case 6:
            candidati.push_back({i, 7, 12});
            break;
        case 13:
            candidati.push_back({i, 4, 6});
            break;
        default:
            break;
        }
        if (zar_.Sansa(30)) candidati.push_back({i, 2, 12});
    }
    int n = candidati.empty() ? 0 : zar_.Ponderat({{0, 15}, {1, 35}, {2, 30}, {3, 20}});
    struct Rand {
        Candidat c;
        QDate data, depunere, expirare;
    };
    std::vector<Rand> randuri;
    while (n > 0 && !candidati.empty()) {
        const size_t k = size_t(zar_.Intre(0, int(candidati.size()) - 1));
        const Candidat c = candidati[k];
        candidati.erase(candidati.begin() + std::ptrdiff_t(k));
        Rand r{c, {}, {}, {}};
        if (InPlata(d.stare)) {
            // Kept up to date: the current one runs out around today, some of them this month.
            if (zar_.Sansa(10))
                r.expirare = zar_.ZiIntre(lunaAzi_, lunaAzi_.addMonths(1).addDays(-1));
            else
                r.expirare = zar_.ZiIntre(azi_.addDays(-20), azi_.addMonths(c.luni).addDays(-10));
            r.data = r.expirare.addMonths(-c.luni);
        } else {
            r.data = zar_.ZiIntre(d.dataCerere.addDays(-30), d.dataCerere);
            r.expirare = r.data.addMonths(c.luni);
        }
        r.depunere = std::min(r.data.addDays(zar_.Intre(0, 10)), azi_);
        randuri.push_back(r);
        --n;
        // A renewal: the one it replaced stays on file.
        if (n > 0 && zar_.Sansa(35)) {
            Rand vechi = r;
            vechi.data = r.data.addMonths(-c.luni);
            vechi.expirare = r.expirare.addMonths(-c.luni);
            vechi.depunere = vechi.data.addDays(zar_.Intre(0, 10));
            randuri.push_back(vechi);
            --n;
        }
    }
    for (const Rand& r : randuri) {
        bool curenta = true;
        for (const Rand& alta : randuri)
            if (alta.c.persoana == r.c.persoana && alta.c.tip == r.c.tip && alta.expirare > r.expirare) curenta = false;
        adeverinte_.Leaga(adevID_++)
            .Leaga(d.id)
            .Leaga(d.persoane[r.c.persoana].id)
            .Leaga(r.c.tip)
            .Leaga(QStringLiteral("%1/%2").arg(zar_.Intre(1, 9999)).arg(r.data.year()))
            .Leaga(r.data)
            .Leaga(r.expirare)
            .Leaga(r.depunere)
            .Leaga(curenta ? 1 : 0)
            .Executa();
    }
}

void Generator::scrieDispozitii(const Dosar& d) {
    const Persoana& titular = d.persoane[0];
    QDate dataDisp;
    for (size_t i = 0; i < d.evenimente.size(); ++i) {
        const Eveniment& e = d.evenimente[i];
        const bool ultimul = i + 1 == d.evenimente.size();
        if (i == 0)
            dataDisp = zar_.ZiIntre(d.dataCerere.addDays(2), std::max(d.dataCerere.addDays(2), e.dinData.addDays(10)));
        else
            dataDisp = zar_.ZiIntre(std::max(dataDisp, e.dinData.addDays(-20)), e.dinData.addDays(10));
        dataDisp = std::min(dataDisp, azi_);
        QString motiv;
        switch (e.actiune) {
        case 1:
            motiv = QStringLiteral("Îndeplinește condițiile prevăzute de Legea nr. 277/2010");
            break;
        case 2:
            motiv = ultimul ? d.motivStare : zar_.Unul(texte().modificare);
            break;
        case 3:
            motiv = ultimul ? d.motivStare : QStringLiteral("Nu a depus actele la termen");
            break;
        case 4:
            motiv = d.motivRespingere == 1   ? QStringLiteral("Nu are copii în întreținere")
                    : d.motivRespingere == 2 ? QStringLiteral("Venitul net pe membru depășește plafonul legal")
                                             : QStringLiteral("Deține bunuri care exclud acordarea alocației");
            break;
        default:
            motiv = d.motivStare;
            break;
        }
        const bool schimbareTitular = d.stare == 8 && ultimul && d.persoane.size() > 1;
        dispozitii_.Leaga(dispozitieID_++)
            .Leaga(d.id)
            .Leaga(nrDisp_++)
            .Leaga(dataDisp)
            .Leaga(e.dinData)
            .Leaga(e.dinData.month())
            .Leaga(e.dinData.year())
            .Leaga(e.actiune)
            .Leaga(e.cuantum);
        // The previous amount belongs only to a change.
        if (e.actiune == 2 && i > 0)
            dispozitii_.Leaga(d.evenimente[i - 1].cuantum);
        else
            dispozitii_.Leaga(QVariant());
        dispozitii_.Leaga(motiv)
            .Leaga(titular.id)
            .Leaga(schimbareTitular ? QVariant(d.persoane[1].nume + QLatin1Char(' ') + d.persoane[1].prenume)
                                    : QVariant())
            .Executa();
    }
}

void Generator::scrieAnchete(const Dosar& d) {
    const Texte& t = texte();
    const int n = d.stare == 1 ? zar_.Ponderat({{0, 50}, {1, 50}}) : zar_.Ponderat({{0, 20}, {1, 55}, {2, 25}});
    QDate data = d.dataCerere.addDays(zar_.Intre(5, 40));
    for (int i = 0; i < n && data <= azi_; ++i) {
        const QDate expira = data.addMonths(6);
        int membri = 0, copii = 0;
        bool copilTotTermenul = false;
        for (const Persoana& p : d.persoane) {
            if (p.nastere > data) continue;
            ++membri;
            const QDate majorat = ZiuaMajoratului(p.nastere);
            copii += majorat > data ? 1 : 0;
            copilTotTermenul = copilTotTermenul || majorat > expira;
        }
        // An inquiry where no child stays a minor through its term is refused by the editor.
        if (copilTotTermenul) {
            const bool proprietate = zar_.Sansa(65);
            QString teren;
            for (const auto& [nrBifa, cantitate] : d.bunuri)
                if (nrBifa + 2 <= 44)
                    teren = QStringLiteral("%1,%2 ha teren agricol")
                                .arg(cantitate.Unitati() / Bani::Scala)
                                .arg(cantitate.Unitati() % Bani::Scala / 100, 2, 10, QLatin1Char('0'));
            anchete_.Leaga(anchetaID_++)
                .Leaga(d.id)
                .Leaga(data)
                .Leaga(zar_.Unul(functionari_))
                .Leaga(expira)
                .Leaga("valabilitate 6 luni")
                .Leaga(membri)
                .Leaga(copii)
                .Leaga(d.felLocuinta)
                .Leaga(proprietate ? zar_.Intre(1, 2) : zar_.Intre(3, 7))
                .Leaga(d.camere)
                .Leaga(QVariant(double(d.suprafata)))
                .Leaga(zar_.Unul(t.bunuri))
                .Leaga(zar_.Unul(t.igiena))
                .Leaga(zar_.Ponderat({{4, 70}, {1, 10}, {2, 15}, {3, 5}}))
                .Leaga(proprietate ? 1 : 2)
                .Leaga(TextSauNul(teren))
                .Leaga(d.bloc ? QVariant() : QVariant(QStringLiteral("casă de locuit și anexe gospodărești")))
                .Leaga(zar_.Unul(t.sanatate))
                .Leaga(zar_.Unul(t.nevoi))
                .Leaga(zar_.Unul(t.aspecte))
                .Executa();
        }
        data = data.addMonths(zar_.Intre(6, 9));
    }
}

} // namespace DemoDate
