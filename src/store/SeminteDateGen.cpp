#include "store/SeminteDateGen.h"

const std::vector<SamantaDateGen>& Seminte::DateGen() {
    static const std::vector<SamantaDateGen> s = {
        {"STATUT", 1, 7, "MODIFICARE CUANTUM", 7},
        {"STATUT", 1, 8, "SCHIMBARE TITULAR", 7},
        {"RUDENIE", 2, 6, "COPIL IN TUTELA", 7},
        {"RUDENIE", 2, 7, "COPIL ADOPTAT", 8},
        {"RUDENIE", 2, 8, "COPIL IN CURATELA", 9},
        {"RUDENIE", 2, 9, "COPIL IN PLASAMENT FAMILIAL", 10},
        {"RUDENIE", 2, 10, "COPIL INCREDINTAT SPRE ADOPTIE", 11},
        {"INCALZIRE", 6, 4, "EN. ELECTRICA", 4},
        {"SITSCOLARA", 22, 4, "SUPERIOARE", 4},
        {"REPREZENTANT", 27, 3, "IN NUME PROPRIU", 0},
        {"TIPLOCUINTA", 29, 1, "TIP A", 1},
        {"TIPLOCUINTA", 29, 2, "TIP B", 2},
        {"TIPACT", 30, 1, "AJOFM (somaj)", 1},
        {"TIPACT", 30, 2, "Finante", 2},
        {"TIPACT", 30, 3, "de la scoala (pt elevi)", 3},
        {"TIPACT", 30, 4, "medicala (pt scutire de munca)", 4},
        {"TIPACT", 30, 5, "Pensie", 5},
        {"TIPACT", 30, 6, "venit net", 6},
        {"TIPACT", 30, 7, "Adeverinta de venit agricol", 7},
        {"TIPACT", 30, 8, "Ancheta sociala", 8},
        {"TIPACT", 30, 9, "Declaratie notar", 9},
        {"RESEDINTA_DISP", 31, 1, "CU DOMICILIU IN", 1},
        {"RESEDINTA_DISP", 31, 2, "CU RESEDINTA IN", 2},
        {"RESEDINTA_DISP", 31, 3, "CARE LOCUIESTE IN", 3},
        {"TIPDOBANDIRE", 32, 1, "CUMPARARE", 1},
        {"TIPDOBANDIRE", 32, 2, "MOSTENIRE", 2},
        {"SITSCOLARAELEV", 33, 1, "PRESCOLAR", 1},
        {"SITSCOLARAELEV", 33, 2, "FARA STUDII", 2},
        {"SITSCOLARAELEV", 33, 3, "ELEV CL I-VIII", 3},
        {"SITSCOLARAELEV", 33, 4, "ELEV CL IX-XII", 4},
        {"TIPVALUTA", 34, 1, "LEI", 1},
        {"TIPVALUTA", 34, 2, "LIRE STERLINE", 2},
        {"TIPVALUTA", 34, 3, "DOLARI", 3},
        {"TIPVALUTA", 34, 4, "EURO", 4},
        {"MOTIV", 35, 1, "NOU NASCUT", 1},
        {"MOTIV", 35, 2, "ANGAJAT", 2},
        {"MOTIV", 35, 3, "DECES", 3},
        {"MOTIV", 35, 4, "PLECAT LA MUNCA IN STRAINATATE", 4},
        {"MOTIV", 35, 5, "CASATORIE", 5},
        {"MOTIV", 35, 6, "DESPARTIT IN FAPT", 6},
        {"STAREMEMBRU", 36, 1, "MEMBRU NEMODIFICAT", 1},
        {"STAREMEMBRU", 36, 2, "MEMBRU NOU", 2},
    };
    return s;
}

const std::vector<SamantaBarem>& Seminte::Barem() {
    static const QDate d2012(2012, 1, 1), d2013(2013, 7, 1), d2014(2014, 11, 1);
    static const std::vector<SamantaBarem> s = {
        {d2012, 1, "COMPLEMENTAR", "0.4", {"0.06", "0.12", "0.18", "0.24"}},
        {d2012, 1, "COMPLEMENTAR", "0.74", {"0.05", "0.1", "0.15", "0.2"}},
        {d2012, 2, "COMPLEMENTAR", "0.4", {"0.1", "0.2", "0.3", "0.4"}},
        {d2012, 2, "COMPLEMENTAR", "0.74", {"0.09", "0.18", "0.27", "0.36"}},
        {d2013, 1, "COMPLEMENTAR", "0.4", {"0.08", "0.16", "0.24", "0.32"}},
        {d2013, 1, "COMPLEMENTAR", "1.06", {"0.066", "0.132", "0.198", "0.264"}},
        {d2013, 2, "MONOPARENTAL", "0.4", {"0.13", "0.26", "0.39", "0.52"}},
        {d2013, 2, "MONOPARENTAL", "1.06", {"0.12", "0.24", "0.36", "0.48"}},
        {d2014, 1, "COMPLEMENTAR", "0.4", {"0.164", "0.328", "0.492", "0.656"}},
        {d2014, 1, "COMPLEMENTAR", "1.06", {"0.15", "0.3", "0.45", "0.6"}},
        {d2014, 2, "MONOPARENTAL", "0.4", {"0.214", "0.428", "0.642", "0.856"}},
        {d2014, 2, "MONOPARENTAL", "1.06", {"0.204", "0.408", "0.612", "0.816"}},
    };
    return s;
}

const std::vector<Seminte::InchidereBarem>& Seminte::InchideriBarem() {
    static const std::vector<InchidereBarem> s = {
        {QDate(2012, 1, 1), QDate(2013, 6, 30)},
        {QDate(2013, 7, 1), QDate(2014, 10, 31)},
    };
    return s;
}
