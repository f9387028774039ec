#include "reports/export/Xlsx.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Urmarire.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>
#include <xlsxwriter.h>

namespace Raport {

namespace {


uint8_t bordura(Linie l) {
    switch (l) {
    case Linie::Subtire:
        return LXW_BORDER_THIN;
    case Linie::Groasa:
        return LXW_BORDER_MEDIUM;
    case Linie::Nimic:
        break;
    }
    return LXW_BORDER_NONE;
}

// One format per look, shared by the cells that have it: a workbook holds a limited number. Looks
// that differ only in what a sheet does not keep share one format too: the library finds the index
// of a format equal to an earlier one by hashing it again at every cell it is written to.
class Formate {
public:
    Formate(lxw_workbook* wb, const Grila& g) : wb_(wb), g_(g) {}

    lxw_format* Al(int rand, int col) {
        const std::uint64_t cheie = g_.CheieAspect(rand, col);
        auto it = formate_.find(cheie);
        if (it != formate_.end()) return it->second;
        const Proprietati p = proprietati(rand, col);
        auto& egal = dupaProprietati_[p];
        if (!egal) egal = format(p);
        formate_.emplace(cheie, egal);
        return egal;
    }

private:
    struct Proprietati {
        std::string font;
        double marime = 0;
        bool bold = false, italic = false, subliniat = false, incadrare = false;
        uint8_t orizontal = 0, vertical = 0, stanga = 0, dreapta = 0, sus = 0, jos = 0, diagonala = 0,
                linieDiagonala = 0;
        FelValoare numar = FelValoare::Text;
        auto operator<=>(const Proprietati&) const = default;
    };

    Proprietati proprietati(int rand, int col) const {
        const Celula& c = g_.La(rand, col);
        const Aliniere a = g_.AliniereCelula(rand, col);
        const Font f = g_.FontCelula(rand, col);
        Proprietati p;
        p.font = f.nume.toStdString();
        p.marime = f.marime;
        p.bold = f.Bold();
        p.italic = f.Italic();
        p.subliniat = f.Subliniat();
        p.incadrare = c.incadrare;
        p.orizontal = a.orizontal == Orizontal::Stanga   ? LXW_ALIGN_LEFT
                      : a.orizontal == Orizontal::Centru ? LXW_ALIGN_CENTER
                                                         : LXW_ALIGN_RIGHT;
        p.vertical = a.vertical == Vertical::Sus      ? LXW_ALIGN_VERTICAL_TOP
                     : a.vertical == Vertical::Centru ? LXW_ALIGN_VERTICAL_CENTER
                                                      : LXW_ALIGN_VERTICAL_BOTTOM;
        p.stanga = bordura(c.linii[0]);
        p.dreapta = bordura(c.linii[1]);
        p.sus = bordura(c.linii[2]);
        p.jos = bordura(c.linii[3]);
        const bool urcand = c.linii[4] != Linie::Nimic, coborand = c.linii[5] != Linie::Nimic;
        if (urcand || coborand) {
            p.diagonala = urcand && coborand ? LXW_DIAGONAL_BORDER_UP_DOWN
                          : urcand           ? LXW_DIAGONAL_BORDER_UP
                                             : LXW_DIAGONAL_BORDER_DOWN;
            p.linieDiagonala = bordura(urcand ? c.linii[4] : c.linii[5]);
        }
        p.numar = Felul(c.valoare);
        return p;
    }

    lxw_format* format(const Proprietati& p) {
        lxw_format* x = workbook_add_format(wb_);
        if (!p.font.empty()) format_set_font_name(x, p.font.c_str());
        if (p.marime > 0) format_set_font_size(x, p.marime);
        if (p.bold) format_set_bold(x);
        if (p.italic) format_set_italic(x);
        if (p.subliniat) format_set_underline(x, LXW_UNDERLINE_SINGLE);
        format_set_align(x, p.orizontal);
        format_set_align(x, p.vertical);
        if (p.incadrare) format_set_text_wrap(x);
        format_set_left(x, p.stanga);
        format_set_right(x, p.dreapta);
        format_set_top(x, p.sus);
        format_set_bottom(x, p.jos);
        if (p.diagonala) {
            format_set_diag_type(x, p.diagonala);
            format_set_diag_border(x, p.linieDiagonala);
        }
        switch (p.numar) {
        case FelValoare::Suma:
            format_set_num_format(x, "0.00");
            break;
        case FelValoare::Data:
            format_set_num_format(x, "dd.mm.yyyy");
            break;
        case FelValoare::Intreg:
            format_set_num_format(x, "0");
            break;
        case FelValoare::Text:
            break;
        }
        return x;
    }

    lxw_workbook* wb_;
    const Grila& g_;
    std::unordered_map<std::uint64_t, lxw_format*> formate_;
    std::map<Proprietati, lxw_format*> dupaProprietati_;
};

void verifica(lxw_error e, const QString& ce) {
    if (e != LXW_NO_ERROR)
        throw Eroare(QStringLiteral("Foaia de calcul nu poate fi scrisa (%1): %2")
                         .arg(ce, QString::fromUtf8(lxw_strerror(e))));
}

void scrieCelula(lxw_worksheet* ws, lxw_row_t r, lxw_col_t c, const Grila& g, int rand, int col, lxw_format* f) {
    const auto eroare = [&] { return g.Text(rand, col); };
    switch (g.Fel(rand, col)) {
    case FelValoare::Suma:
        verifica(worksheet_write_number(ws, r, c, g.Valoare(rand, col).value<Bani>().ToDouble(), f), eroare());
        return;
    case FelValoare::Data: {
        const QDate d = g.Valoare(rand, col).toDate();
        lxw_datetime dt{d.year(), d.month(), d.day(), 0, 0, 0};
        verifica(worksheet_write_datetime(ws, r, c, &dt, f), eroare());
        return;
    }
    case FelValoare::Intreg:
        verifica(worksheet_write_number(ws, r, c, double(g.Valoare(rand, col).toLongLong()), f), eroare());
        return;
    case FelValoare::Text:
        break;
    }
    const QUtf8StringView text = g.TextVedere(rand, col);
    if (text.isEmpty())
        verifica(worksheet_write_blank(ws, r, c, f), eroare());
    else
        verifica(worksheet_write_string(ws, r, c, std::string(text.data(), size_t(text.size())).c_str(), f), eroare());
}

void scrieFoaia(const Grila& g, const QString& cale) {
    // Told before a million rows are written in vain: the sheet has room for so many and no more.
    if (g.Randuri() - 1 > LXW_ROW_MAX || g.Coloane() - 1 > LXW_COL_MAX)
        throw Eroare(QStringLiteral("Raportul are %1 randuri si %2 coloane, iar o foaie de calcul primeste cel mult "
                                    "%3 randuri si %4 coloane. Restrangeti alegerile sau salvati grila.")
                         .arg(g.Randuri() - 1)
                         .arg(g.Coloane() - 1)
                         .arg(LXW_ROW_MAX)
                         .arg(LXW_COL_MAX));
    // The library's own temporary files go beside the sheet, in the writer's folder.
    const QByteArray fisier = QFile::encodeName(cale);
    const QByteArray folder = QFile::encodeName(QFileInfo(cale).path());
    // A sheet whose merges each stay on one row is written row by row, without holding every cell
    // and every text in memory first: many times faster on a list of a million rows. The library
    // cannot merge over several rows that way.
    std::map<int, std::vector<Dreptunghi>> uniriPeRand;
    bool peRanduri = true;
    for (const Dreptunghi& u : g.Uniri()) {
        if (u.rand1 < 1 || u.col1 < 1) continue; // the fixed row and column stay out of the sheet
        if (u.rand1 != u.rand2) peRanduri = false;
        uniriPeRand[u.rand1].push_back(u);
    }
    lxw_workbook_options optiuni{};
    optiuni.tmpdir = const_cast<char*>(folder.constData());
    optiuni.constant_memory = peRanduri ? LXW_TRUE : LXW_FALSE;
    lxw_workbook* wb = workbook_new_opt(fisier.constData(), &optiuni);
    if (!wb) throw Eroare(QStringLiteral("Foaia de calcul nu poate fi creata."));
    lxw_worksheet* ws = workbook_add_worksheet(wb, nullptr);
    try {
        worksheet_set_paper(ws, g.pagina.hartie == Hartie::A3 ? 8 : g.pagina.hartie == Hartie::A4 ? 9 : 11);
        if (!g.pagina.portret) worksheet_set_landscape(ws);
        constexpr double CmPeInch = 2.54;
        worksheet_set_margins(ws, g.pagina.margini[0] / CmPeInch, g.pagina.margini[2] / CmPeInch,
                              g.pagina.margini[1] / CmPeInch, g.pagina.margini[3] / CmPeInch);
        Formate formate(wb, g);
        for (int c = 1; c < g.Coloane(); ++c)
            verifica(worksheet_set_column_pixels(ws, lxw_col_t(c - 1), lxw_col_t(c - 1), uint32_t(g.LatimeColoana(c)),
                                                 nullptr),
                     QStringLiteral("coloana %1").arg(c));
        // The merge writes its first cell's look everywhere; each cell then gets its own back, so
        // that the rectangle's edges are drawn where the grid draws them.
        const auto uneste = [&](const Dreptunghi& u) {
            verifica(worksheet_merge_range(ws, lxw_row_t(u.rand1 - 1), lxw_col_t(u.col1 - 1), lxw_row_t(u.rand2 - 1),
                                           lxw_col_t(u.col2 - 1), "", formate.Al(u.rand1, u.col1)),
                     g.Text(u.rand1, u.col1));
            for (int r = u.rand1; r <= u.rand2; ++r)
                for (int c = u.col1; c <= u.col2; ++c)
                    scrieCelula(ws, lxw_row_t(r - 1), lxw_col_t(c - 1), g, r, c, formate.Al(r, c));
        };
        int semn = 0;
        for (int r = 1; r < g.Randuri(); ++r) {
            if (r >= semn) semn = r + Urmarire::Avans(r - 1, g.Randuri() - 1);
            verifica(worksheet_set_row_pixels(ws, lxw_row_t(r - 1), uint32_t(g.InaltimeRand(r)), nullptr),
                     QStringLiteral("randul %1").arg(r));
            const auto uniri = uniriPeRand.find(r);
            if (peRanduri && uniri != uniriPeRand.end())
                for (const Dreptunghi& u : uniri->second)
                    uneste(u);
            for (int c = 1; c < g.Coloane(); ++c) {
                if (g.EsteGoala(r, c) || g.UnireLa(r, c)) continue;
                scrieCelula(ws, lxw_row_t(r - 1), lxw_col_t(c - 1), g, r, c, formate.Al(r, c));
            }
        }
        if (!peRanduri)
            for (const auto& [rand, uniri] : uniriPeRand)
                for (const Dreptunghi& u : uniri)
                    uneste(u);
    } catch (...) {
        workbook_close(wb);
        throw;
    }
    verifica(Urmarire::Incheie(g.Randuri() - 1, [wb] { return workbook_close(wb); }), QFileInfo(cale).fileName());
}

} // namespace

void ScrieXlsx(const Grila& g, const QString& fisier) {
    ScrieIntregPrin(fisier, [&](const QString& temporar) { scrieFoaia(g, temporar); });
}

} // namespace Raport
