#include "maintenance/CitireMdb.h"

#include "base/Eroare.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <mdbtools.h>
#include <type_traits>
#include <vector>

namespace {

// libmdb is loaded when an Access file is opened, not with the program: the CSV import, and all the
// rest, work on a computer without it, which is then named in the error.
struct Libmdb {
    decltype(&mdb_open) open = nullptr;
    decltype(&mdb_close) close = nullptr;
    decltype(&mdb_set_date_fmt) set_date_fmt = nullptr;
    decltype(&mdb_set_shortdate_fmt) set_shortdate_fmt = nullptr;
    decltype(&mdb_set_boolean_fmt_numbers) set_boolean_fmt_numbers = nullptr;
    decltype(&mdb_set_bind_size) set_bind_size = nullptr;
    decltype(&mdb_read_catalog) read_catalog = nullptr;
    decltype(&mdb_is_system_table) is_system_table = nullptr;
    decltype(&mdb_read_table) read_table = nullptr;
    decltype(&mdb_read_columns) read_columns = nullptr;
    decltype(&mdb_rewind_table) rewind_table = nullptr;
    decltype(&mdb_bind_column) bind_column = nullptr;
    decltype(&mdb_fetch_row) fetch_row = nullptr;
    decltype(&mdb_free_tabledef) free_tabledef = nullptr;

    static const Libmdb& Incarca() {
        static const Libmdb l = [] {
            Libmdb r;
            static QLibrary lib(QStringLiteral("mdb"), 3);
            if (!lib.load()) return r;
            const auto f = [&](auto& p, const char* nume) {
                p = reinterpret_cast<std::decay_t<decltype(p)>>(lib.resolve(nume));
            };
            f(r.open, "mdb_open");
            f(r.close, "mdb_close");
            f(r.set_date_fmt, "mdb_set_date_fmt");
            f(r.set_shortdate_fmt, "mdb_set_shortdate_fmt");
            f(r.set_boolean_fmt_numbers, "mdb_set_boolean_fmt_numbers");
            f(r.set_bind_size, "mdb_set_bind_size");
            f(r.read_catalog, "mdb_read_catalog");
            f(r.is_system_table, "mdb_is_system_table");
            f(r.read_table, "mdb_read_table");
            f(r.read_columns, "mdb_read_columns");
            f(r.rewind_table, "mdb_rewind_table");
            f(r.bind_column, "mdb_bind_column");
            f(r.fetch_row, "mdb_fetch_row");
            f(r.free_tabledef, "mdb_free_tabledef");
            return r;
        }();
        if (!l.Complet())
            throw Eroare(QStringLiteral("Biblioteca libmdb (pachetul libmdb3) lipseste: fisierele .mdb nu pot fi "
                                        "citite. Exportati tabelele in fisiere .csv cu mdb-export si importati "
                                        "folderul lor."));
        return l;
    }

private:
    bool Complet() const {
        return open && close && set_date_fmt && set_shortdate_fmt && set_boolean_fmt_numbers && set_bind_size &&
               read_catalog && is_system_table && read_table && read_columns && rewind_table && bind_column &&
               fetch_row && free_tabledef;
    }
};

// A memo longer than this is cut by libmdb; the old program's memos are short names.
constexpr size_t MarimeLegare = 1 << 18;

class TabelaMdb : public TabelaVeche {
public:
    TabelaMdb(MdbCatalogEntry* intrare, const QString& nume) : nume_(nume) {
        def_ = l_.read_table(intrare);
        if (!def_) throw Eroare(QStringLiteral("Tabela %1 nu poate fi citita.").arg(nume));
        l_.read_columns(def_);
        l_.rewind_table(def_);
        legari_.resize(def_->num_cols);
        for (unsigned i = 0; i < def_->num_cols; ++i) {
            auto* col = static_cast<MdbColumn*>(g_ptr_array_index(def_->columns, i));
            campuri_ << QString::fromUtf8(col->name);
            legari_[i].buf.resize(MarimeLegare);
            l_.bind_column(def_, int(i) + 1, legari_[i].buf.data(), &legari_[i].lungime);
        }
    }
    ~TabelaMdb() override {
        if (def_) l_.free_tabledef(def_);
    }
    TabelaMdb(const TabelaMdb&) = delete;
    TabelaMdb& operator=(const TabelaMdb&) = delete;

    QStringList Campuri() const override { return campuri_; }

    bool Urmator(QStringList& valori) override {
        for (auto& l : legari_)
            l.lungime = 0;
        if (!l_.fetch_row(def_)) return false;
        ++rand_;
        valori.clear();
        for (const auto& l : legari_)
            // libmdb gives an empty text and a missing value alike, as mdb-export writes them.
            valori << (l.lungime > 0 ? QString::fromUtf8(l.buf.data(), l.lungime) : QString());
        return true;
    }

    qint64 Pozitie() const override { return rand_; }
    QString Loc() const override { return QStringLiteral("randul %1").arg(rand_); }

private:
    struct Legare {
        std::vector<char> buf;
        int lungime = 0;
    };
    const Libmdb& l_ = Libmdb::Incarca();
    QString nume_;
    MdbTableDef* def_ = nullptr;
    QStringList campuri_;
    std::vector<Legare> legari_;
    qint64 rand_ = 0;
};

class SursaMdb : public SursaVeche {
public:
    explicit SursaMdb(const QString& fisier) : fisier_(fisier) {
        if (qEnvironmentVariableIsEmpty("MDB_JET3_CHARSET")) qputenv("MDB_JET3_CHARSET", "CP1250");
        mdb_ = l_.open(QFile::encodeName(fisier).constData(), MDB_NOFLAGS);
        if (!mdb_)
            throw Eroare(QStringLiteral("Fisierul %1 nu este o baza de date Access care sa poata fi citita.")
                             .arg(QDir::toNativeSeparators(fisier)));
        l_.set_date_fmt(mdb_, "%Y-%m-%d %H:%M:%S");
        l_.set_shortdate_fmt(mdb_, "%Y-%m-%d %H:%M:%S");
        l_.set_boolean_fmt_numbers(mdb_);
        l_.set_bind_size(mdb_, MarimeLegare);
        if (!l_.read_catalog(mdb_, MDB_TABLE)) {
            l_.close(mdb_);
            throw Eroare(QStringLiteral("Fisierul %1 nu are un catalog de tabele care sa poata fi citit.")
                             .arg(QDir::toNativeSeparators(fisier)));
        }
        for (unsigned i = 0; i < mdb_->num_catalog; ++i) {
            auto* e = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb_->catalog, i));
            if (e->object_type != MDB_TABLE || l_.is_system_table(e)) continue;
            intrari_.push_back(e);
            tabele_ << QString::fromUtf8(e->object_name);
        }
    }
    ~SursaMdb() override { l_.close(mdb_); }
    SursaMdb(const SursaMdb&) = delete;
    SursaMdb& operator=(const SursaMdb&) = delete;

    QString Descriere() const override { return QDir::toNativeSeparators(fisier_); }
    QStringList Tabele() const override { return tabele_; }

    qint64 Volum(const QString& tabela) const override {
        MdbTableDef* t = l_.read_table(intrare(tabela));
        if (!t) return 0;
        const qint64 n = t->num_rows;
        l_.free_tabledef(t);
        return n;
    }

    std::unique_ptr<TabelaVeche> Deschide(const QString& tabela) override {
        return std::make_unique<TabelaMdb>(intrare(tabela), tabela);
    }

private:
    MdbCatalogEntry* intrare(const QString& tabela) const {
        for (qsizetype i = 0; i < tabele_.size(); ++i)
            if (tabele_[i].compare(tabela, Qt::CaseInsensitive) == 0) return intrari_[size_t(i)];
        throw Eroare(QStringLiteral("Tabela %1 nu exista in %2.").arg(tabela, Descriere()));
    }

    const Libmdb& l_ = Libmdb::Incarca();
    QString fisier_;
    MdbHandle* mdb_ = nullptr;
    std::vector<MdbCatalogEntry*> intrari_;
    QStringList tabele_;
};

} // namespace

std::unique_ptr<SursaVeche> DeschideMdb(const QString& fisier) {
    return std::make_unique<SursaMdb>(fisier);
}
