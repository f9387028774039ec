#include "maintenance/Updater.h"

#include "base/ServiciuFisiere.h"
#include "base/Val.h"
#include "reference/Praguri.h"
#include "store/DateGen.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

namespace {

const QString DenumirePraguri = QStringLiteral("PRAGURI_VENIT");

// A version text is a short line; a longer answer is some page the server put in its place.
constexpr int LungimeMaximaVersiune = 200;

QString citesteText(const QString& cale) {
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(f.readAll());
}

bool scrieAtomic(const QString& cale, const QByteArray& continut) {
    QSaveFile f(cale);
    if (!f.open(QIODevice::WriteOnly)) return false;
    if (f.write(continut) != continut.size()) {
        f.cancelWriting();
        return false;
    }
    return f.commit();
}

QByteArray sumaFisier(const QString& cale) {
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly)) return {};
    QCryptographicHash h(QCryptographicHash::Sha256);
    if (!h.addData(&f)) return {};
    return h.result().toHex();
}

constexpr QFileDevice::Permissions PermisiuniExecutabil =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup |
    QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther;

// A name of a file in the program's own folder: no path, nothing that climbs out of it.
bool numeSimplu(const QString& nume) {
    static const QRegularExpression permis(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9_.-]*$"));
    return permis.match(nume).hasMatch() && !nume.contains(QStringLiteral(".."));
}

// The downloaded build, verified, saved as "new" and checked again on disk; then version.txt.
// Returns the refusal, or nothing when the build is ready to take over.
QString pregatesteBuild(const Updater::Mediu& m, const QString& versiune) {
    const auto build = Descarcare::Descarca(m.AdresaBuild(), m.timpMaximMs, m.progresBuild);
    if (!build.Reusit()) return QStringLiteral("Versiunea noua nu a putut fi descarcata.");
    QUrl adresaSuma = m.AdresaBuild();
    adresaSuma.setPath(adresaSuma.path() + QStringLiteral(".sha256"));
    const auto suma = Descarcare::Descarca(adresaSuma, m.timpMaximMs);
    if (!suma.Reusit()) return QStringLiteral("Suma de control a versiunii noi nu a putut fi descarcata.");
    if (!Updater::SumaCorespunde(build.corp, suma.corp))
        return QStringLiteral("Versiunea noua descarcata nu corespunde sumei de control; nu a fost instalata.");

    const QString nou = m.CaleNou();
    if (!scrieAtomic(nou, build.corp) || !QFile::setPermissions(nou, PermisiuniExecutabil) ||
        sumaFisier(nou) != QCryptographicHash::hash(build.corp, QCryptographicHash::Sha256).toHex()) {
        QFile::remove(nou);
        return QStringLiteral("Versiunea noua nu a putut fi scrisa in %1.").arg(QDir::toNativeSeparators(nou));
    }
    // Recorded before the new build runs, so that a failed hand-over does not download it again.
    if (!scrieAtomic(m.CaleVersiune(), versiune.toUtf8())) {
        QFile::remove(nou);
        return QStringLiteral("Fisierul %1 nu a putut fi scris.").arg(QDir::toNativeSeparators(m.CaleVersiune()));
    }
    return {};
}

} // namespace

QString Updater::SufixExecutabil() {
#ifdef Q_OS_WIN
    return QStringLiteral(".exe");
#else
    return {};
#endif
}

QString Updater::NumeExecutabil(const QString& numeFaraSufix) {
    return numeFaraSufix + SufixExecutabil();
}

QString Updater::NumeFaraSufix(const QString& caleExecutabil) {
    QString nume = QFileInfo(caleExecutabil).fileName();
    const QString sufix = SufixExecutabil();
    if (!sufix.isEmpty() && nume.endsWith(sufix, Qt::CaseInsensitive)) nume.chop(sufix.size());
    return nume;
}

QUrl Updater::BazaDinText(const QString& text) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return {};
    QUrl u(t, QUrl::StrictMode);
    if (!u.isValid() || u.host().isEmpty()) return {};
    if (!u.path().endsWith(u'/')) u.setPath(u.path() + u'/');
    return u;
}

Updater::Mediu Updater::Mediu::DinProgram(const QString& serverActualizare, const QString& applicationPath) {
    Mediu m;
    m.baza = BazaDinText(serverActualizare);
    const QString executabil = QCoreApplication::applicationFilePath();
    m.exe = NumeFaraSufix(executabil);
    m.folderProgram = applicationPath;
    m.folderExecutabil = QFileInfo(executabil).absolutePath();
    const QFileInfo folder(m.folderExecutabil);
    m.portabil = QFileInfo(applicationPath).canonicalFilePath() == folder.canonicalFilePath() && folder.isWritable();
    return m;
}

QUrl Updater::Mediu::Adresa(const QString& relativ) const {
    QUrl u = baza;
    u.setPath(baza.path() + relativ);
    return u;
}

QUrl Updater::Mediu::AdresaVersiune() const {
    return Adresa(exe + QStringLiteral("/version.txt"));
}

QUrl Updater::Mediu::AdresaBuild() const {
    return Adresa(exe + u'/' + NumeExecutabil(exe));
}

QUrl Updater::Mediu::AdresaIstoric() const {
    return Adresa(exe + QStringLiteral("/update-log.txt"));
}

QUrl Updater::Mediu::AdresaPraguri() const {
    return Adresa(QStringLiteral("prag-asf.txt"));
}

QString Updater::Mediu::CaleVersiune() const {
    return QDir(folderProgram).filePath(FisierVersiune);
}

QString Updater::Mediu::CaleNou() const {
    return QDir(folderExecutabil).filePath(NumeExecutabil(Nou));
}

QString Updater::TextProgres(qint64 primit, qint64 total) {
    if (total > 0) return QStringLiteral("Actualizare aplicatie . . . %1%").arg(primit * 100 / total);
    return QStringLiteral("Actualizare aplicatie . . . %1 KB").arg(primit / 1024);
}

QString Updater::CuratareText(const QString& text) {
    static const QRegularExpression rupturi(QStringLiteral("\r\n|\r|\n"));
    QString rezultat;
    for (const QString& linie : text.split(rupturi))
        rezultat += linie.trimmed();
    return rezultat;
}

bool Updater::SumaCorespunde(const QByteArray& corp, const QByteArray& fisierSuma) {
    const QByteArray asteptata = fisierSuma.trimmed().left(64);
    static const QRegularExpression hex(QStringLiteral("^[0-9A-Fa-f]{64}$"));
    if (!hex.match(QString::fromLatin1(asteptata)).hasMatch()) return false;
    return QCryptographicHash::hash(corp, QCryptographicHash::Sha256).toHex() == asteptata.toLower();
}

Updater::RezultatVerificare Updater::Verifica(const Mediu& m, const std::optional<QString>& praguriCurente) {
    RezultatVerificare r;
    if (!m.Activ() || !Descarcare::AdresaPermisa(m.baza)) return r;
    r.versiuneLocala = CuratareText(citesteText(m.CaleVersiune()));

    const auto versiune = Descarcare::Descarca(m.AdresaVersiune(), m.timpMaximMs);
    r.serverRaspunde = versiune.status != 0;
    if (versiune.stare == Descarcare::Raspuns::Stare::Expirat) return r;
    if (versiune.Reusit()) {
        const QString text = CuratareText(QString::fromUtf8(versiune.corp));
        if (text.size() <= LungimeMaximaVersiune) r.versiuneServer = text;
    }

    // Versions have no order: any other text is the build to take.
    if (!r.versiuneServer.isEmpty() && r.versiuneServer != r.versiuneLocala && m.portabil) {
        r.refuz = pregatesteBuild(m, r.versiuneServer);
        if (r.refuz.isEmpty()) {
            r.predare = Lansare{m.CaleNou(), {VerbClonare + u'@' + m.exe}};
            return r;
        }
    }

    const auto praguri = Descarcare::Descarca(m.AdresaPraguri(), m.timpMaximMs);
    if (praguri.Reusit()) {
        const QString prag = CuratareText(QString::fromUtf8(praguri.corp));
        // Stored only in the form the scale editor writes, so that the amounts can still be computed.
        if (!prag.isEmpty() && prag != praguriCurente && PraguriValide(prag)) r.praguri = prag;
    }
    return r;
}

std::optional<QString> Updater::PraguriCurente(BazaDate& db) {
    return ContinutDateGen(db, DenumirePraguri);
}

void Updater::AplicaPraguri(BazaDate& db, const QString& praguri) {
    ScrieContinutDateGen(db, DenumirePraguri, praguri);
}

std::optional<QString> Updater::Istoric(const Mediu& m) {
    if (!m.Activ()) return std::nullopt;
    const auto r = Descarcare::Descarca(m.AdresaIstoric(), m.timpMaximMs);
    if (!r.Reusit()) return std::nullopt;
    return QString::fromUtf8(r.corp);
}

std::optional<Updater::Argumente> Updater::CitesteArgumente(const QStringList& argumente) {
    const QString linie = argumente.join(u' ');
    const qsizetype at = linie.indexOf(u'@');
    if (at < 0) return std::nullopt;
    return Argumente{linie.left(at).trimmed(), linie.mid(at + 1).trimmed()};
}

bool Updater::StergeNou(const Mediu& m) {
    const QString nou = m.CaleNou();
    return !QFile::exists(nou) || QFile::remove(nou);
}

bool Updater::TocmaActualizat(const QStringList& argumente, const Mediu& m) {
    if (argumente.join(u' ').trimmed() != ArgumentStergereNou) return false;
    StergeNou(m);
    return true;
}

void Updater::AnuleazaPredare(const Mediu& m, const RezultatVerificare& r) {
    QFile::remove(m.CaleNou());
    if (r.versiuneLocala.isEmpty())
        QFile::remove(m.CaleVersiune());
    else
        scrieAtomic(m.CaleVersiune(), r.versiuneLocala.toUtf8());
}

Updater::RezultatClonare Updater::Cloneaza(const QString& sursa, const QString& operand) {
    RezultatClonare r;
    if (!numeSimplu(operand)) return r;
    const QDir folder = QFileInfo(sursa).absoluteDir();
    r.tinta = folder.filePath(NumeExecutabil(operand));
    r.urmator = Lansare{r.tinta, {ArgumentStergereNou}};
    if (QFileInfo(r.tinta).canonicalFilePath() == QFileInfo(sursa).canonicalFilePath()) return r;

    // The copy goes beside the target first and takes its place in one rename, so that a failure
    // half-way leaves the old program whole.
    const QString temporar = r.tinta + QStringLiteral(".nou");
    QFile::remove(temporar);
    if (!QFile::copy(sursa, temporar) || !QFile::setPermissions(temporar, PermisiuniExecutabil) ||
        sumaFisier(temporar) != sumaFisier(sursa)) {
        QFile::remove(temporar);
        return r;
    }
    // The old program ends just before this one starts; on some systems its file stays locked a
    // moment longer.
    for (int incercare = 0; incercare < 25; ++incercare) {
        if (!QFile::exists(r.tinta) || QFile::remove(r.tinta)) {
            r.reusit = QFile::rename(temporar, r.tinta);
            break;
        }
        QThread::msleep(200);
    }
    if (!r.reusit) QFile::remove(temporar);
    return r;
}

std::optional<Updater::RezultatClonare>
Updater::ClonareLaPornire(const QStringList& argumente, const QString& fisierSetari, const QString& executabil) {
    const auto a = CitesteArgumente(argumente);
    if (!a || a->verb != VerbClonare) return std::nullopt;
    const QString generale = QStringLiteral("Generale");
    if (Val(ServiciuFisiere::CitesteIni(fisierSetari, generale, QStringLiteral("OpresteActualizareAutomata"))) != 0)
        return std::nullopt;
    if (BazaDinText(ServiciuFisiere::CitesteIni(fisierSetari, generale, QStringLiteral("ServerActualizare"))).isEmpty())
        return std::nullopt;
    return Cloneaza(executabil, a->operand);
}
