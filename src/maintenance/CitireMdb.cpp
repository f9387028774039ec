#include "maintenance/CitireMdb.h"

#include "base/Eroare.h"

#include <QDir>
#include <QFile>
#include <mdbtools.h>
#include <vector>

namespace {

// A memo longer than this is cut by libmdb; the old program's memos are short names.
constexpr size_t MarimeLegare = 1 << 18;

class TabelaMdb : public TabelaVeche {
public:
    TabelaMdb(MdbCatalogEntry* intrare, const QString& nume) : nume_(nume) {
        def_ = mdb_read_table(intrare);
        if (!def_) throw Eroare(QStringLiteral("Tabela %1 nu poate fi citita.").arg(nume));
        mdb_read_columns(def_);
        mdb_rewind_table(def_);
        legari_.resize(def_->num_cols);
        for (unsigned i = 0; i < def_->num_cols; ++i) {
            auto* col = static_cast<MdbColumn*>(g_ptr_array_index(def_->columns, i));
            campuri_ << QString::fromUtf8(col->name);
            legari_[i].buf.resize(MarimeLegare);
            mdb_bind_column(def_, int(i) + 1, legari_[i].buf.data(), &legari_[i].lungime);
        }
    }
    ~TabelaMdb() override {
        if (def_) mdb_free_tabledef(def_);
    }
    TabelaMdb(const TabelaMdb&) = delete;
    TabelaMdb& operator=(const TabelaMdb&) = delete;

    QStringList Campuri() const override { return campuri_; }

    bool Urmator(QStringList& valori) override {
        for (auto& l : legari_)
            l.lungime = 0;
        if (!mdb_fetch_row(def_)) return false;
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
        mdb_ = mdb_open(QFile::encodeName(fisier).constData(), MDB_NOFLAGS);
        if (!mdb_)
            throw Eroare(QStringLiteral("Fisierul %1 nu este o baza de date Access care sa poata fi citita.")
                             .arg(QDir::toNativeSeparators(fisier)));
        mdb_set_date_fmt(mdb_, "%Y-%m-%d %H:%M:%S");
        mdb_set_shortdate_fmt(mdb_, "%Y-%m-%d %H:%M:%S");
        mdb_set_boolean_fmt_numbers(mdb_);
        mdb_set_bind_size(mdb_, MarimeLegare);
        if (!mdb_read_catalog(mdb_, MDB_TABLE)) {
            mdb_close(mdb_);
            throw Eroare(QStringLiteral("Fisierul %1 nu are un catalog de tabele care sa poata fi citit.")
                             .arg(QDir::toNativeSeparators(fisier)));
        }
        for (unsigned i = 0; i < mdb_->num_catalog; ++i) {
            auto* e = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb_->catalog, i));
            if (e->object_type != MDB_TABLE || mdb_is_system_table(e)) continue;
            intrari_.push_back(e);
            tabele_ << QString::fromUtf8(e->object_name);
        }
    }
    ~SursaMdb() override { mdb_close(mdb_); }
    SursaMdb(const SursaMdb&) = delete;
    SursaMdb& operator=(const SursaMdb&) = delete;

    QString Descriere() const override { return QDir::toNativeSeparators(fisier_); }
    QStringList Tabele() const override { return tabele_; }

    qint64 Volum(const QString& tabela) const override {
        MdbTableDef* t = mdb_read_table(intrare(tabela));
        if (!t) return 0;
        const qint64 n = t->num_rows;
        mdb_free_tabledef(t);
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

    QString fisier_;
    MdbHandle* mdb_ = nullptr;
    std::vector<MdbCatalogEntry*> intrari_;
    QStringList tabele_;
};

} // namespace

std::unique_ptr<SursaVeche> DeschideMdb(const QString& fisier) {
    return std::make_unique<SursaMdb>(fisier);
}
