#include "reports/export/Xlsx.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <string>
#include <map>
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

// One format per look, shared by the cells that have it: a workbook holds a limited number.
class Formate {
public:
    Formate(lxw_workbook* wb, const Grila& g) : wb_(wb), g_(g) {}

    lxw_format* Al(int rand, int col) {
        const std::uint64_t cheie = g_.CheieAspect(rand, col);
        auto it = formate_.find(cheie);
        if (it != formate_.end()) return it->second;
        const Celula& c = g_.La(rand, col);
        const Aliniere a = g_.AliniereCelula(rand, col);
        const Font f = g_.FontCelula(rand, col);
        const FelValoare fel = Felul(c.valoare);

        lxw_format* x = workbook_add_format(wb_);
        const QByteArray nume = f.nume.toUtf8();
        if (!nume.isEmpty()) format_set_font_name(x, nume.constData());
        if (f.marime > 0) format_set_font_size(x, f.marime);
        if (f.Bold()) format_set_bold(x);
        if (f.Italic()) format_set_italic(x);
        if (f.Subliniat()) format_set_underline(x, LXW_UNDERLINE_SINGLE);
        format_set_align(x, a.orizontal == Orizontal::Stanga  ? LXW_ALIGN_LEFT
                            : a.orizontal == Orizontal::Centru ? LXW_ALIGN_CENTER
                                                               : LXW_ALIGN_RIGHT);
        format_set_align(x, a.vertical == Vertical::Sus      ? LXW_ALIGN_VERTICAL_TOP
                            : a.vertical == Vertical::Centru ? LXW_ALIGN_VERTICAL_CENTER
                                                             : LXW_ALIGN_VERTICAL_BOTTOM);
        if (c.incadrare) format_set_text_wrap(x);
        format_set_left(x, bordura(c.linii[0]));
        format_set_right(x, bordura(c.linii[1]));
        format_set_top(x, bordura(c.linii[2]));
        format_set_bottom(x, bordura(c.linii[3]));
        const bool sus = c.linii[4] != Linie::Nimic, jos = c.linii[5] != Linie::Nimic;
        if (sus || jos) {
            format_set_diag_type(x, sus && jos ? LXW_DIAGONAL_BORDER_UP_DOWN
                                    : sus      ? LXW_DIAGONAL_BORDER_UP
                                               : LXW_DIAGONAL_BORDER_DOWN);
            format_set_diag_border(x, bordura(sus ? c.linii[4] : c.linii[5]));
        }
        if (fel == FelValoare::Suma) format_set_num_format(x, "0.00");
        if (fel == FelValoare::Data) format_set_num_format(x, "dd.mm.yyyy");
        if (fel == FelValoare::Intreg) format_set_num_format(x, "0");
        formate_.emplace(cheie, x);
        return x;
    }

private:
    lxw_workbook* wb_;
    const Grila& g_;
    std::unordered_map<std::uint64_t, lxw_format*> formate_;
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
        for (int r = 1; r < g.Randuri(); ++r) {
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
    verifica(workbook_close(wb), QFileInfo(cale).fileName());
}

} // namespace

void ScrieXlsx(const Grila& g, const QString& fisier) {
    ScrieIntregPrin(fisier, [&](const QString& temporar) { scrieFoaia(g, temporar); });
}

} // namespace Raport
