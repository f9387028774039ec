#pragma once

#include "cli/ComenziCli.h"
#include "support/BazaTest.h"

#include <QStringList>
#include <QTextStream>

// What one run of the command-line tool returned and wrote.
struct IesireCli {
    int cod;
    QString out, err;
};

inline IesireCli RuleazaLinie(QStringList argumente) {
    QString out, err;
    QTextStream o(&out), e(&err);
    argumente.prepend(QStringLiteral("ferolanta-cli"));
    const int cod = RuleazaCli(argumente, o, e);
    return {cod, out, err};
}

class TestCli : public TestBaza {
protected:
    // The tool's options that name the test's database.
    QStringList Loc() const {
        QStringList a{QStringLiteral("--dir"), Locatie().caleBD};
        if (!Locatie().url.isEmpty()) a << QStringLiteral("--db") << Locatie().url;
        return a;
    }
    // The command run on the test's database.
    IesireCli Ruleaza(const QStringList& comanda) const { return RuleazaLinie(comanda + Loc()); }
};
