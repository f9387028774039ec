#pragma once

#include "documents/DateDocumenteTest.h"
#include "documents/web/PunteWeb.h"
#include "support/SqlTest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <map>
#include <vector>

// What the tests of the web bridge share: a program folder holding the delivered query file and
// page, a reader of the data file that decodes it independently of the program's own table, and
// the case file they print.

inline const QString SursaInterogari = T(FEROLANTA_SURSA "/Acte/sql_cerere.txt");
inline const QString SursaPagina = T(FEROLANTA_SURSA "/web/StartCerereWeb.html");
inline QString CitesteText(const QString& cale) {
    return QString::fromUtf8(CitesteTot(cale));
}
inline void ScrieText(const QString& cale, const QString& text) {
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QFile f(cale);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(text.toUtf8());
}

// A program folder: Acte/sql_cerere.txt and web/StartCerereWeb.html as delivered.
struct FolderProgram {
    QTemporaryDir dir;
    PunteWeb::MediuWeb mediu = PunteWeb::MediuWeb::DinApplicationPath(dir.path(), QString());
    FolderProgram() {
        for (const auto& [sursa, tinta] :
             {std::pair{SursaInterogari, mediu.fisierInterogari}, std::pair{SursaPagina, mediu.pagina}}) {
            QDir().mkpath(QFileInfo(tinta).absolutePath());
            QFile::copy(sursa, tinta);
        }
    }
    QString Date() const { return CitesteText(mediu.FisierIesire()); }
};

// One list per statement, one map per row, names in lower case, values decoded from their hex pairs
// through ICU's Windows-1250.
using Rand = std::map<QString, QString>;
using Rezultate = std::vector<std::vector<Rand>>;
inline Rezultate CitesteJson(const QString& json) {
    Rezultate r;
    for (const QJsonValue& lista : QJsonDocument::fromJson(json.toUtf8()).array()) {
        std::vector<Rand> randuri;
        for (const QJsonValue& rand : lista.toArray()) {
            Rand m;
            const QJsonObject o = rand.toObject();
            for (auto it = o.begin(); it != o.end(); ++it) {
                QByteArray octeti;
                for (const QString& p : it.value().toString().split(u' ', Qt::SkipEmptyParts))
                    octeti.append(char(p.toInt(nullptr, 16)));
                m[it.key().toLower()] = QStringDecoder("windows-1250")(octeti);
            }
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

// Request 7 of a holder whose given name carries a quote, a double quote, a backslash, angle
// brackets and a cedilla letter, with its household, housing, several dispositions and
// inquiries (one of each undated).
inline const QString PrenumeTitular = T("Ţăndărică D'Or \"Ion\" \\ <b>");
inline const char* CnpTitular = "1850312410015";

inline void ScrieDosarWeb(BazaDate& db) {
    ScriePrimarie(db, PrimarieA());
    CerereDocTest c = CerereA();
    c.VenitpeMembru = Suma("400.1667");
    c.Cuantum = Suma("164");
    c.MotivStare = T("Linia 1\nLinia 2");
    c.Persoane = {{70, T("Șerban"), PrenumeTitular, QString::fromLatin1(CnpTitular), 1, 1, 3},
                  {72, T("Popescu"), T("Mihai"), T("5100203410034"), 3, 8, QVariant()},
                  {71, T("Popescu"), T("Ioana"), T("2870506410021"), 2, 4, 2}};
    ScrieCerere(db, c);
    Tranzactie t(db);
    ExecutaCu(db,
              T("UPDATE Cereri SET Bife = '0000000010', ModPlata = 2, Cont = ?, Banca = 'BCR', "
                "DataStare = NULL WHERE CerereID = 7"),
              T("RO49AAAA1B31007593840000"));
    ExecutaCu(db, T("UPDATE Membrii SET TipAct = 2, DataElib = ? WHERE MembruID = 70"), QDate(2012, 7, 1));
    db.Executa(T("INSERT INTO Locuinte (CerereID, Cod, NrCamere, Suprafata) VALUES (7, 3, 2, 48.5)"));
    // The newest that grants, changes or resumes is number 60; 77 suspends, 99 has no date.
    const std::tuple<qint64, int, QVariant, int, const char*> dispozitii[] = {{3, 45, QDate(2015, 2, 20), 1, "82"},
                                                                              {4, 60, QDate(2016, 1, 10), 2, "164"},
                                                                              {5, 77, QDate(2017, 5, 1), 3, "0"},
                                                                              {6, 99, QVariant(), 1, "82"}};
    for (const auto& [id, nr, data, actiune, cuantum] : dispozitii)
        ScrieDispozitie(db, {id, 7, nr, data, QVariant(), actiune, Suma(cuantum), QVariant(), T("motiv")});
    // The newest is inquiry 2; 3 has no date.
    const std::tuple<qint64, QVariant, const char*, QString> anchete[] = {
        {1, QDate(2015, 3, 1), "Ana Vechi", T("vechi")},
        {2, QDate(2016, 2, 1), "Elena Dumitru", T("nou")},
        {3, QVariant(), "Fara Data", T("fara data")}};
    for (const auto& [id, data, intocmitor, aspecte] : anchete)
        ExecutaCu(db,
                  T("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, NrMembrii, "
                    "NrCopii, TipLocuinta, RegimJuridic, TipDetinere, Aspecte) "
                    "VALUES (?, 7, ?, ?, 3, 1, 3, 1, 1, ?)"),
                  id, data, T(intocmitor), aspecte);
    t.Confirma();
}
