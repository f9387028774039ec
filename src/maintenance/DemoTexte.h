#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <random>
#include <vector>

// The names, places and amounts that the demo data are drawn from.
namespace DemoDate {

// The standard distributions may differ from one library to another; drawing straight from the
// engine keeps a seed's data the same on every platform.
class Zar {
public:
    explicit Zar(quint64 samanta) : g_(samanta) {}

    int Intre(int a, int b) { return b <= a ? a : a + int(g_() % quint64(b - a + 1)); }
    bool Sansa(int procente) { return Intre(1, 100) <= procente; }
    QDate ZiIntre(const QDate& a, const QDate& b) {
        return b <= a ? a : a.addDays(qint64(g_() % quint64(a.daysTo(b) + 1)));
    }
    // One of the values, each drawn in proportion to its weight.
    int Ponderat(std::initializer_list<std::pair<int, int>> optiuni) {
        int total = 0;
        for (const auto& o : optiuni)
            total += o.second;
        int r = Intre(1, total);
        for (const auto& o : optiuni)
            if ((r -= o.second) <= 0) return o.first;
        return optiuni.begin()->first;
    }
    const QString& Unul(const QStringList& l) { return l[Intre(0, int(l.size()) - 1)]; }
    QString Cifre(int n) {
        QString s;
        for (int i = 0; i < n; ++i)
            s += QChar(u'0' + Intre(0, 9));
        return s;
    }

private:
    std::mt19937_64 g_;
};

struct Texte {
    QStringList familie, barbati, femei, baieti, fete, strazi, asiguratori, functionari, bunuri, igiena, sanatate,
        nevoi, aspecte, suspendare, incetare, schimbareTitular, modificare;
};

const Texte& texte();

struct Judet {
    int cod;
    const char* nume;
    const char* serie; // of identity cards
};

inline constexpr Judet Judete[] = {
    {1, "Alba", "AB"},       {2, "Arad", "AR"},           {3, "Argeș", "AG"},
    {4, "Bacău", "BC"},      {5, "Bihor", "BH"},          {6, "Bistrița-Năsăud", "BN"},
    {7, "Botoșani", "BT"},   {8, "Brașov", "BV"},         {9, "Brăila", "BR"},
    {10, "Buzău", "BZ"},     {11, "Caraș-Severin", "CS"}, {12, "Cluj", "CJ"},
    {13, "Constanța", "CT"}, {14, "Covasna", "CV"},       {15, "Dâmbovița", "DB"},
    {16, "Dolj", "DJ"},      {17, "Galați", "GL"},        {18, "Gorj", "GJ"},
    {19, "Harghita", "HR"},  {20, "Hunedoara", "HD"},     {21, "Ialomița", "IL"},
    {22, "Iași", "IS"},      {23, "Ilfov", "IF"},         {24, "Maramureș", "MM"},
    {25, "Mehedinți", "MH"}, {26, "Mureș", "MS"},         {27, "Neamț", "NT"},
    {28, "Olt", "OT"},       {29, "Prahova", "PH"},       {30, "Satu Mare", "SM"},
    {31, "Sălaj", "SJ"},     {32, "Sibiu", "SB"},         {33, "Suceava", "SV"},
    {34, "Teleorman", "TR"}, {35, "Timiș", "TM"},         {36, "Tulcea", "TL"},
    {37, "Vaslui", "VS"},    {38, "Vâlcea", "VL"},        {39, "Vrancea", "VN"},
    {40, "București", "RD"}, {51, "Călărași", "CL"},      {52, "Giurgiu", "GR"},
};

// County codes a CNP may carry: the counties, and the six sectors of Bucharest.
std::vector<int> coduriCnp();

struct Oras {
    const char* nume;
    int judet;
};

inline constexpr Oras Orase[] = {{"Pașcani", 22}, {"Câmpina", 29}, {"Fălticeni", 33}, {"Caracal", 28},
                                 {"Roman", 27},   {"Lugoj", 35},   {"Dej", 12},       {"Tecuci", 17},
                                 {"Bârlad", 37},  {"Onești", 4},   {"Făgăraș", 8},    {"Sighișoara", 26}};

struct Banca {
    const char* cod;
    const char* nume;
};

inline constexpr Banca Banci[] = {{"BTRL", "Banca Transilvania"},
                                  {"BRDE", "BRD - Groupe Société Générale"},
                                  {"RNCB", "Banca Comercială Română"},
                                  {"RZBR", "Raiffeisen Bank"},
                                  {"CECE", "CEC Bank"},
                                  {"INGB", "ING Bank"},
                                  {"BACX", "UniCredit Bank"}};

// A good of the catalogue with the quantities a family of the town may hold.
struct Bun {
    int rand;         // NrBifa of ListaBife
    int minim, maxim; // in steps
    qint64 pas;       // Bani units of one step
};

inline constexpr Bun Bunuri[] = {
    {11, 2, 30, 500},   {12, 2, 30, 500},   {21, 1, 6, 500},   {26, 1, 4, 500},
    {28, 2, 20, 500},   {29, 2, 20, 500},   {32, 1, 6, 500},   {45, 1, 2, 10000},
    {67, 1, 4, 10000},  {59, 2, 15, 10000}, {62, 1, 6, 10000}, {73, 2, 10, 10000},
    {74, 5, 30, 10000}, {77, 2, 10, 10000}, {79, 2, 8, 10000}, {80, 2, 6, 10000},
};

} // namespace DemoDate
