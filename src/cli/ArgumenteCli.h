#pragma once

#include "base/Mesaje.h"
#include "base/Setari.h"
#include "store/BazaDate.h"

#include <QCommandLineParser>
#include <QString>
#include <QTextStream>
#include <optional>

// What the commands of ferolanta-cli share: the usage error, the messages on the tool's own
// streams, the options every command reads, and the commands themselves (one file each). Each
// command returns the exit code and throws EroareArgumente for a usage error.
namespace Cli {

// A usage error: told as one line followed by the usage, exit code 2.
struct EroareArgumente {
    QString text;
};

// Messages of the core go to the same streams as the tool's own output.
class MesajeFlux : public Mesaje {
public:
    MesajeFlux(QTextStream& out, QTextStream& err) : out_(out), err_(err) {}
    void Informatie(const QString& text, const QString&) override { out_ << text << Qt::endl; }
    void Avertisment(const QString& text, const QString&) override { err_ << text << Qt::endl; }
    void Critic(const QString& text, const QString&) override { err_ << text << Qt::endl; }
    bool Intrebare(const QString& text, const QString&, bool implicitDa) override {
        err_ << text << Qt::endl;
        return implicitDa;
    }
    QString Intrare(const QString& text, const QString&, const QString& implicit) override {
        err_ << text << Qt::endl;
        return implicit;
    }

private:
    QTextStream& out_;
    QTextStream& err_;
};

// The database of --dir (the current folder by default) or --db.
LocatieBD Locatie(const QCommandLineParser& p);
// The settings file of the database folder, when there is one.
std::optional<Setari> SetariBazei(const LocatieBD& loc);

// A whole number from minim to maxim; `ce` names it in the usage error.
qint64 NumarIntre(const QString& text, qint64 minim, qint64 maxim, const QString& ce);
// The option's number, or `implicit` when the option is not given (a usage error without one).
qint64 OptiuneIntre(const QCommandLineParser& p, const QString& optiune, qint64 minim, qint64 maxim,
                    std::optional<qint64> implicit);

int ComandaInit(const QCommandLineParser& p, QTextStream& out, QTextStream& err);
int ComandaUpgrade(const QCommandLineParser& p, QTextStream& out, QTextStream& err);
int ComandaDemo(const QCommandLineParser& p, QTextStream& out, QTextStream& err);
int ComandaCauta(const QCommandLineParser& p, QTextStream& out, QTextStream& err);
int ComandaCuantum(const QCommandLineParser& p, const QString& idText, QTextStream& out, QTextStream& err);
int ComandaDocument(const QCommandLineParser& p, const QString& fel, const QString& idText, QTextStream& out,
                    QTextStream& err);
int ComandaRaport(const QCommandLineParser& p, const QString& ce, QTextStream& out);
int ComandaBorderou(const QCommandLineParser& p, QTextStream& out);
int ComandaBas(const QCommandLineParser& p, const QString& formular, QTextStream& out);
int ComandaIsr(const QCommandLineParser& p, const QString& valoare, QTextStream& out);
int ComandaCopie(const QCommandLineParser& p, QTextStream& out);
int ComandaIstoric(const QCommandLineParser& p, const QString& nrText, QTextStream& out);
int ComandaRestaurare(const QCommandLineParser& p, const QString& copie, QTextStream& out);
int ComandaMentenanta(const QCommandLineParser& p, const QString& unealta, QTextStream& out);
int ComandaImport(const QCommandLineParser& p, const QString& cale, QTextStream& out);
int ComandaWeb(const QCommandLineParser& p, const QString& document, const QString& idText, QTextStream& out,
               QTextStream& err);

} // namespace Cli
