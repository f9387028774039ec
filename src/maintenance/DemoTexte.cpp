#include "maintenance/DemoTexte.h"

#include <algorithm>

namespace DemoDate {

namespace {

QStringList lista(std::initializer_list<const char*> l) {
    QStringList r;
    for (const char* s : l)
        r << QString::fromUtf8(s);
    return r;
}

} // namespace

// clang-format off
const Texte& texte() {
    static const Texte t{
        lista({"Popescu", "Ionescu", "Popa", "Pop", "Radu", "Dumitru", "Stan", "Stoica", "Gheorghe", "Matei",
               "Ciobanu", "Rusu", "Munteanu", "Constantin", "Marin", "Mihai", "Ene", "Ilie", "Tudor", "Florea",
               "Dinu", "Barbu", "Nistor", "Moldovan", "Lungu", "Cristea", "Toma", "Zamfir", "Sandu", "Lazăr",
               "Dobre", "Anghel", "Voicu", "Preda", "Neagu", "Oprea", "Mocanu", "Ungureanu", "Vasile", "Manea",
               "Sima", "Bălan", "Roman", "Cojocaru", "Apostol", "Ursu", "Tănase", "Diaconu", "Grigore", "Iordache",
               "Nedelcu", "Bogdan", "Enache", "Paraschiv", "Pavel", "Petrescu", "Avram", "Chiriac", "Olteanu",
               "Moraru", "Țurcanu", "Șerban", "Stănescu", "Niculescu", "Dragomir", "Iancu", "Bratu", "Cozma",
               "Husar", "Mureșan", "Rotaru", "Costache", "Ababei", "Agache", "Lupu", "Vlad"}),
        lista({"Ion", "Gheorghe", "Vasile", "Constantin", "Nicolae", "Mihai", "Ioan", "Alexandru", "Andrei",
               "Adrian", "Daniel", "Marian", "Florin", "Ionuț", "Cătălin", "Cristian", "Dumitru", "Bogdan", "Costel",
               "Marius", "Ștefan", "Sorin", "Lucian", "Răzvan", "Gabriel", "Viorel", "Petru", "Valentin", "Cosmin",
               "Mădălin", "Claudiu", "Silviu", "Liviu", "Dănuț", "George", "Iulian", "Laurențiu", "Ovidiu"}),
        lista({"Maria", "Elena", "Ioana", "Ana", "Mihaela", "Andreea", "Cristina", "Daniela", "Gabriela", "Alina",
               "Nicoleta", "Georgiana", "Florentina", "Mariana", "Ramona", "Simona", "Adriana", "Roxana",
               "Loredana", "Monica", "Oana", "Irina", "Alexandra", "Carmen", "Larisa", "Raluca", "Camelia",
               "Luminița", "Violeta", "Lăcrămioara", "Petronela", "Diana", "Claudia", "Iuliana", "Valentina"}),
        lista({"David", "Andrei", "Alexandru", "Ștefan", "Luca", "Matei", "Darius", "Mihai", "Rareș", "Gabriel",
               "Sebastian", "Eduard", "Teodor", "Denis", "Mario", "Robert", "Vlad", "Răzvan", "Ionuț", "Antonio",
               "Fabian", "Cristian", "Bogdan", "Daniel", "Tudor", "Albert", "Eric", "Paul", "Victor", "Aris"}),
        lista({"Maria", "Ioana", "Sofia", "Elena", "Daria", "Eliza", "Ana", "Alesia", "Bianca", "Andreea", "Alexia",
               "Antonia", "Medeea", "Denisa", "Larisa", "Rebeca", "Delia", "Sara", "Melisa", "Iasmina", "Miruna",
               "Ariana", "Karina", "Natalia", "Teodora", "Ilinca", "Anastasia", "Amalia", "Evelina", "Patricia"}),
        lista({"Strada Mihai Eminescu", "Strada Ștefan cel Mare", "Strada Unirii", "Strada Libertății",
               "Strada Republicii", "Strada Independenței", "Strada Gării", "Strada Florilor", "Strada Morii",
               "Strada Școlii", "Strada Bisericii", "Strada Primăverii", "Bulevardul 1 Decembrie 1918",
               "Strada Avram Iancu", "Strada Tudor Vladimirescu", "Strada Nicolae Bălcescu",
               "Strada Alexandru Ioan Cuza", "Strada Mihai Viteazu", "Strada Decebal", "Strada Traian",
               "Strada Păcii", "Strada Victoriei", "Strada Crinului", "Strada Teilor", "Strada Salcâmilor",
               "Strada Plopilor", "Strada Viilor", "Strada Cireșilor", "Strada Zorilor", "Strada Lalelelor",
               "Strada Ion Creangă", "Strada George Coșbuc", "Strada Vasile Alecsandri", "Strada Fabricii"}),
        lista({"Allianz-Țiriac Asigurări", "Groupama Asigurări", "Omniasig", "Asirom", "Generali România",
               "Grawe România"}),
        lista({"Elena Marinescu", "Ana-Maria Lungu", "Cristina Dobrescu", "Mihaela Ursache", "Gabriel Tomescu",
               "Daniela Pricop", "Ioan Chirilă", "Simona Vrabie"}),
        lista({"televizor, frigider, aragaz", "televizor, frigider, mașină de spălat", "aragaz, frigider",
               "mobilier uzat, televizor", "televizor, frigider, calculator", "frigider, aragaz, mobilier",
               "televizor, mașină de spălat, aragaz, mobilier"}),
        lista({"corespunzătoare", "bune", "satisfăcătoare", "precare", "foarte bune"}),
        lista({"Membrii familiei sunt clinic sănătoși", "Nu sunt probleme de sănătate declarate",
               "Titularul suferă de o boală cronică", "Un copil este în evidența medicului de familie",
               "Starea de sănătate a membrilor este bună"}),
        lista({"Nu este cazul", "Sprijin pentru rechizite școlare", "Lemne de foc pentru iarnă",
               "Îmbrăcăminte și încălțăminte pentru copii", "Sprijin pentru plata utilităților"}),
        lista({"Copiii frecventează cursurile școlare", "Familia locuiește împreună cu bunicii",
               "Locuința este îngrijită", "Copiii sunt îngrijiți corespunzător", "Familia are o gospodărie modestă",
               "Părinții sunt preocupați de educația copiilor"}),
        lista({"Nu a depus adeverința de elev", "Nu a depus actele la termen",
               "Ancheta socială nu a putut fi efectuată"}),
        lista({"Schimbarea domiciliului în altă localitate", "Renunțarea la drept", "Plecarea familiei în străinătate",
               "Nu a prezentat actele solicitate"}),
        lista({"Titularul a plecat la muncă în străinătate", "Cererea părinților",
               "Titularul s-a angajat în altă localitate"}),
        lista({"Modificarea numărului de copii", "Modificarea veniturilor familiei",
               "Modificarea cuantumului prin lege"}),
    };
    return t;
}
// clang-format on

std::vector<int> coduriCnp() {
    std::vector<int> c;
    for (const auto& j : Judete)
        c.push_back(j.cod);
    for (int s = 41; s <= 46; ++s)
        c.push_back(s);
    std::sort(c.begin(), c.end());
    return c;
}

} // namespace DemoDate
