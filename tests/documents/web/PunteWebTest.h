#pragma once

#include "documents/web/PunteWeb.h"
#include "base/Mesaje.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <map>
#include <vector>

// What the tests of the web bridge share: a program folder holding the delivered query file and
// page, and a reader of the data file that decodes it independently of the program's own table.

inline QString SursaInterogari() {
    return QStringLiteral(FEROLANTA_SURSA "/Acte/sql_cerere.txt");
}
inline QString SursaPagina() {
    return QStringLiteral(FEROLANTA_SURSA "/web/StartCerereWeb.html");
}

inline QString CitesteText(const QString& cale) {
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

inline void ScrieText(const QString& cale, const QString& text) {
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QFile f(cale);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(text.toUtf8());
}

// A program folder: Acte/sql_cerere.txt and web/StartCerereWeb.html as delivered.
struct FolderProgram {
    QTemporaryDir dir;
    PunteWeb::MediuWeb mediu;

    explicit FolderProgram(bool cuFisiere = true) {
        mediu = PunteWeb::MediuWeb::DinApplicationPath(dir.path(), QString());
        if (!cuFisiere) return;
        QDir().mkpath(QFileInfo(mediu.fisierInterogari).absolutePath());
        QDir().mkpath(QFileInfo(mediu.pagina).absolutePath());
        QFile::copy(SursaInterogari(), mediu.fisierInterogari);
        QFile::copy(SursaPagina(), mediu.pagina);
    }
    QString Date() const { return CitesteText(mediu.FisierIesire()); }
};

// The hex pairs read back through ICU's Windows-1250, not through the program's table.
inline QString DinHex(const QString& hex) {
    QByteArray octeti;
    for (const QString& p : hex.split(u' ', Qt::SkipEmptyParts))
        octeti.append(char(p.toInt(nullptr, 16)));
    QStringDecoder d("windows-1250");
    return d(octeti);
}

// One list per statement, one map per row, names in lower case, values decoded.
using Rand = std::map<QString, QString>;
using Rezultate = std::vector<std::vector<Rand>>;

inline Rezultate CitesteJson(const QString& json) {
    Rezultate r;
    const QJsonDocument doc = QJsonDocument::fromJson(json.toUtf8());
    for (const QJsonValue& lista : doc.array()) {
        std::vector<Rand> randuri;
        for (const QJsonValue& rand : lista.toArray()) {
            Rand m;
            const QJsonObject o = rand.toObject();
            for (auto it = o.begin(); it != o.end(); ++it)
                m[it.key().toLower()] = DinHex(it.value().toString());
            randuri.push_back(m);
        }
        r.push_back(randuri);
    }
    return r;
}

// The JSON of the data file's last line.
inline QString JsonDinFisier(const QString& text) {
    const qsizetype i = text.lastIndexOf(QLatin1String("VB6_OUTPUT="));
    return i < 0 ? QString() : text.mid(i + 11).trimmed();
}

// Keeps the titles as well, which the bridge's boxes carry.
class MesajeCuTitlu : public Mesaje {
public:
    struct Mesaj {
        Fel fel;
        QString text, titlu;
    };
    void Informatie(const QString& t, const QString& titlu = {}) override {
        mesaje.push_back({Fel::Informatie, t, titlu});
    }
    void Avertisment(const QString& t, const QString& titlu = {}) override {
        mesaje.push_back({Fel::Avertisment, t, titlu});
    }
    void Critic(const QString& t, const QString& titlu = {}) override { mesaje.push_back({Fel::Critic, t, titlu}); }
    bool Intrebare(const QString& t, const QString& titlu = {}, bool = true) override {
        mesaje.push_back({Fel::Intrebare, t, titlu});
        return true;
    }
    QString Intrare(const QString& t, const QString& titlu = {}, const QString& implicit = {}) override {
        mesaje.push_back({Fel::Intrare, t, titlu});
        return implicit;
    }
    std::vector<Mesaj> mesaje;
};

#include "documents/DateDocumenteTest.h"
#include "support/SqlTest.h"

// The case file that the web tests print: request 7 of a holder whose given name carries a
// quote, a double quote, a backslash, angle brackets and a cedilla letter, with its household,
// incomes, goods, housing, a leaver, several dispositions and inquiries (one of each undated).
inline QString PrenumeTitular() {
    return T("Ţăndărică D'Or \"Ion\" \\ <b>");
}
inline QString NumeTitular() {
    return T("Șerban");
}
inline const char* CnpTitular = "1850312410015";

inline QString AspecteAncheta() {
    // Every character of the code page from the blank on, a line break in the middle, and both
    // forms of ș ț; neither end is a blank, which the program trims.
    QString s = T("«");
    QStringDecoder d("windows-1250");
    for (int b = 0x20; b <= 0xFF; ++b) {
        if (b == 0x7F) continue;
        const QString c = d(QByteArray(1, char(b)));
        if (c != QStringLiteral("\uFFFD") && (c[0].unicode() < 0x80 || c[0].unicode() >= 0xA0)) s += c;
        if (b == 0x80) s += u'\n';
    }
    return s + T("șțȘȚ»");
}

inline void ScrieDosarWeb(BazaDate& db) {
    ScriePrimarie(db, PrimarieA());
    CerereDocTest c = CerereA();
    c.VenitpeMembru = Suma("400.1667");
    c.Cuantum = Suma("164");
    c.MotivStare = T("Linia 1\nLinia 2");
    c.Persoane = {{70, NumeTitular(), PrenumeTitular(), QString::fromLatin1(CnpTitular), 1, 1, 3},
                  {72, T("Popescu"), T("Mihai"), T("5100203410034"), 3, 8, QVariant()},
                  {71, T("Popescu"), T("Ioana"), T("2870506410021"), 2, 4, 2}};
    ScrieCerere(db, c);
    Tranzactie t(db);
    ExecutaCu(db,
              QStringLiteral("UPDATE Cereri SET Bife = ?, ActeBife = ?, ModPlata = 2, Cont = ?, Banca = ?, "
                             "Vmg = 1, Inc = 0, ReprLegal = 3, DataStare = NULL WHERE CerereID = 7"),
              QStringLiteral("0000000010"), QStringLiteral("1100"), QStringLiteral("RO49AAAA1B31007593840000"),
              QStringLiteral("BCR"));
    ExecutaCu(db,
              QStringLiteral("UPDATE Membrii SET SerieBI = 'IF', NrBI = '123456', TipAct = 2, DataElib = ? "
                             "WHERE MembruID = 70"),
              QDate(2012, 7, 1));
    ExecutaCu(db, QStringLiteral("UPDATE CereriMembrii SET UScolara = ?, Clasa = ? WHERE MembruID = 72"),
              T("Școala Gimnazială nr. 1"), T("a V-a"));
    for (const auto& [cod, valoare] : {std::pair{1, "1000.5"}, std::pair{12, "200"}})
        ExecutaCu(db, QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (7, ?, ?)"), cod,
                  Suma(valoare));
    ExecutaCu(db, QStringLiteral("INSERT INTO BifeText (CerereID, NrBifa, Valoare) VALUES (7, 11, ?)"), Suma("1.5"));
    Interogare(db, QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere, Suprafata) VALUES (7, 3, 2, 48.5)"))
        .Executa();
    ExecutaCu(db, QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (75, ?, ?, ?)"),
              T("Popescu"), T("Ana"), T("6150101410011"));
    ExecutaCu(db, QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (1, ?)"), T("Încredințare"));
    Interogare(db, QStringLiteral("INSERT INTO CMIesiti (CerereID, MembruID, RudenieID, MotivID) VALUES (7, 75, 3, 1)"))
        .Executa();
    // The newest that grants, changes or resumes is number 60; 77 suspends, 99 has no date.
    const struct {
        qint64 id;
        int nr;
        QVariant data;
        int actiune;
        const char* cuantum;
    } dispozitii[] = {{3, 45, QDate(2015, 2, 20), 1, "82"},
                      {4, 60, QDate(2016, 1, 10), 2, "164"},
                      {5, 77, QDate(2017, 5, 1), 3, "0"},
                      {6, 99, QVariant(), 1, "82"}};
    for (const auto& d : dispozitii)
        ScrieDispozitie(db, {d.id, 7, d.nr, d.data, QVariant(), d.actiune, Suma(d.cuantum), QVariant(), T("motiv")});
    // The newest is inquiry 2; 3 has no date.
    const struct {
        qint64 id;
        QVariant data;
        const char* intocmitor;
        QString aspecte;
    } anchete[] = {{1, QDate(2015, 3, 1), "Ana Vechi", T("vechi")},
                   {2, QDate(2016, 2, 1), "Elena Dumitru", AspecteAncheta()},
                   {3, QVariant(), "Fara Data", T("fara data")}};
    for (const auto& a : anchete)
        ExecutaCu(db,
                  QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, "
                                 "DataExpirarii, NrMembrii, NrCopii, TipLocuinta, RegimJuridic, NrCamere, "
                                 "SuprUtila, TipDetinere, Aspecte) VALUES (?, 7, ?, ?, ?, 3, 1, 3, 1, 2, 48.5, "
                                 "1, ?)"),
                  a.id, a.data, T(a.intocmitor), a.data.isNull() ? QVariant() : QVariant(a.data.toDate().addMonths(6)),
                  a.aspecte);
    t.Confirma();
}
