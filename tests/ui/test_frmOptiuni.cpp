#include "base/Foldere.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "app/frmOptiuni.h"
#include "support/FormTest.h"
#include "support/MesajeInregistrate.h"
#include "support/Texte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class DialogOptiuni : public ::testing::Test {
protected:
    QString Ini() const { return QDir(dir_.path()).filePath(Foldere::FisierSetari); }
    std::string Citeste(const char* sectiune, const char* cheie) const {
        return S(ServiciuFisiere::CitesteIni(Ini(), QLatin1String(sectiune), QLatin1String(cheie)));
    }

    // Settings away from the defaults, as a clerk may have left them.
    static Setari Pornire() {
        Setari s;
        s.NrCerereAnexa3 = QStringLiteral("NrDispozitie");
        s.FontName0 = QStringLiteral("DejaVu Serif");
        s.FontSize0 = 12;
        s.FontB0 = true;
        s.FontU0 = true;
        s.AppWord = 3;
        s.DataCerereTiparita = 0;
        s.HeightRowBorderou = 20;
        s.Motiv = true;
        s.StrSat = QStringLiteral("Satul");
        s.CuloareVenit = QStringLiteral("255");
        s.Parola = QStringLiteral("parola");
        s.LunaSetata = 4;
        s.AnSetat = 2024;
        return s;
    }

    QTemporaryDir dir_;
    MesajeInregistrate m_;
};

TEST_F(DialogOptiuni, ControaleleArataSetarile) {
    Setari s = Pornire();
    frmOptiuni f(s, Ini(), m_);
    EXPECT_EQ(S(f.windowTitle()), "Optiuni");
    // Every control the dialog is built of.
    const QByteArray controale =
        "cboNrCerereAnexa3 cboNrCerere cboAppWord cboDataCerere chkAfisCereri txtAnexa3 txtAnexa4 "
        "txtStatPlata chkAnexa2ExportWord txtStrSat chkSerieStatPlata chkReteaSetat chkMotiv "
        "txtHeightRowBorderou txtHeightRowRaport chkCerere13Pag chkAncheta14Pag chkNotifActe chkAngPlata "
        "chkCertificare chkNrCerereInAncheta chkNrCerere txtServerCerere chk_update_off lblFont cmdFont "
        "cmdCuloare lblFundal cmdDelColor cmdOK cmdCancel";
    for (const QByteArray& nume : controale.split(' '))
        Gaseste<QWidget>(f, nume.constData());

    EXPECT_EQ(S(Gaseste<QComboBox>(f, "cboNrCerereAnexa3")->currentText()), "NrDispozitie");
    EXPECT_EQ(S(Gaseste<QComboBox>(f, "cboAppWord")->currentText()), "Word Pad");
    EXPECT_EQ(S(Gaseste<QComboBox>(f, "cboDataCerere")->currentText()), "Nimic");
    EXPECT_EQ(S(Gaseste<QComboBox>(f, "cboNrCerere")->currentText()), "Nu");
    EXPECT_EQ(Gaseste<QComboBox>(f, "cboNrCerere")->count(), 3);
    EXPECT_EQ(S(Gaseste<QLineEdit>(f, "txtHeightRowBorderou")->text()), "20");
    EXPECT_EQ(S(Gaseste<QLineEdit>(f, "txtHeightRowRaport")->text()), "36");
    EXPECT_EQ(S(Gaseste<QLineEdit>(f, "txtStrSat")->text()), "Satul");
    EXPECT_EQ(S(Gaseste<QLineEdit>(f, "txtServerCerere")->text()), S(ServerCerereImplicit));
    EXPECT_TRUE(Gaseste<QCheckBox>(f, "chkMotiv")->isChecked());
    EXPECT_TRUE(Gaseste<QCheckBox>(f, "chkAfisCereri")->isChecked());
    EXPECT_FALSE(Gaseste<QCheckBox>(f, "chkReteaSetat")->isChecked());
    EXPECT_EQ(S(Gaseste<QCheckBox>(f, "chkCerere13Pag")->text()), " In Cerere se tiparesc minim 13 pagini");
    EXPECT_EQ(S(Gaseste<QCheckBox>(f, "chkNrCerere")->text()), "Tipareste Nr si Data Cerere");

    auto* lblFont = Gaseste<QLabel>(f, "lblFont");
    EXPECT_EQ(S(lblFont->text()), "DejaVu Serif, 12, B, U");
    EXPECT_EQ(S(lblFont->font().family()), "DejaVu Serif");
    EXPECT_TRUE(lblFont->font().bold());
    EXPECT_FALSE(lblFont->font().italic());
    EXPECT_TRUE(lblFont->font().underline());
    auto* lblFundal = Gaseste<QLabel>(f, "lblFundal");
    EXPECT_TRUE(lblFundal->autoFillBackground());
    EXPECT_EQ(lblFundal->palette().color(QPalette::Window), QColor(255, 0, 0));

    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty()) {
        f.show();
        auto* tab = Gaseste<QTabWidget>(f, "tabOptiuni");
        for (int i = 0; i < tab->count(); ++i) {
            tab->setCurrentIndex(i);
            EXPECT_TRUE(f.grab().save(QStringLiteral("%1/frmOptiuni_%2.png").arg(capturi, tab->tabText(i))));
        }
    }
    EXPECT_FALSE(QFile::exists(Ini())) << "opening the dialog writes nothing";
}

TEST_F(DialogOptiuni, OKScrieFisierulSiSetarile) {
    Setari s = Pornire();
    frmOptiuni f(s, Ini(), m_);
    Gaseste<QCheckBox>(f, "chk_update_off")->setChecked(true);
    Gaseste<QCheckBox>(f, "chkAfisCereri")->setChecked(false);
    Gaseste<QCheckBox>(f, "chkMotiv")->setChecked(false);
    Gaseste<QCheckBox>(f, "chkReteaSetat")->setChecked(true);
    Gaseste<QCheckBox>(f, "chkSerieStatPlata")->setChecked(true);
    Gaseste<QCheckBox>(f, "chkCertificare")->setChecked(true);
    Gaseste<QCheckBox>(f, "chkNrCerere")->setChecked(true);
    Gaseste<QComboBox>(f, "cboNrCerereAnexa3")->setCurrentIndex(-1);
    auto* cboAppWord = Gaseste<QComboBox>(f, "cboAppWord");
    cboAppWord->setCurrentIndex(cboAppWord->findText(QStringLiteral("Open/Libre Office WRITER")));
    Gaseste<QComboBox>(f, "cboDataCerere")->setCurrentIndex(2);
    Gaseste<QLineEdit>(f, "txtHeightRowBorderou")->setText(QStringLiteral("40,5"));
    Gaseste<QLineEdit>(f, "txtHeightRowRaport")->setText(QStringLiteral("300"));
    Gaseste<QLineEdit>(f, "txtAnexa3")->setText(QStringLiteral("A3 mai.xls"));
    Gaseste<QLineEdit>(f, "txtStrSat")->setText(QStringLiteral("Strada"));
    Gaseste<QLineEdit>(f, "txtServerCerere")->setText(QString());
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(14);
    font.setItalic(true);
    f.AlegeFont(font);
    EXPECT_EQ(S(Gaseste<QLabel>(f, "lblFont")->text()), "DejaVu Sans, 14, I");
    f.AlegeCuloare(QColor(10, 20, 30));

    f.OK();
    EXPECT_TRUE(m_.mesaje.empty()) << S(m_.Texte().join(u'\n'));
    EXPECT_EQ(f.result(), QDialog::Accepted);

    const struct {
        const char* sectiune;
        const char* cheie;
        const char* valoare;
    } inFisier[] = {
        {"Generale", "OpresteActualizareAutomata", "1"},
        {"Ordonari", "NrCerereAnexa3", ""},
        {"Fonturi", "FontSize0", "14"},
        {"Fonturi", "FontName0", "DejaVu Sans"},
        {"Fonturi", "FontB0", "0"},
        {"Fonturi", "FontI0", "255"},
        {"Fonturi", "FontU0", "0"},
        {"Afisari", "AfisCereri", "0"},
        {"Fisiere", "Anexa3", "A3 mai.xls"},
        {"Fisiere", "Anexa4", "Statistica.xls"},
        {"Generale", "StrSat", "Strada"},
        {"Generale", "AfisSerieStatPlata", "1"},
        {"Generale", "ReteaSetat", "1"},
        {"Generale", "Motiv", "0"},
        {"Borderou", "HeightRowBorderou", "40"},
        {"Raport", "HeightRowRaport", "36"},
        {"App", "AppWord", "2"},
        {"Generale", "DataCerereTiparita", "2"},
        {"Cereri", "CertificarePrimar", "1"},
        {"Cereri", "AngajamentPlata", "0"},
        {"Generale", "NrCerereTiparita", "1"},
        {"Generale", "ServerCerere", ""},
        {"Generale", "CuloareVenit", "1971210"},
    };
    for (const auto& c : inFisier)
        EXPECT_EQ(Citeste(c.sectiune, c.cheie), c.valoare) << c.cheie;
    // Keys that belong to other dialogs are not touched.
    for (const char* cheie : {"pass", "CaleBD", "LoadTipCerere"})
        EXPECT_EQ(Citeste("Generale", cheie), "") << cheie;
    EXPECT_EQ(Citeste("Setari", "LunaSetata"), "");

    EXPECT_TRUE(s.OpresteActualizareAutomata);
    EXPECT_TRUE(s.NrCerereAnexa3.isEmpty());
    EXPECT_EQ(s.FontSize0, 14);
    EXPECT_EQ(S(s.FontName0), "DejaVu Sans");
    EXPECT_FALSE(s.FontB0);
    EXPECT_TRUE(s.FontI0);
    EXPECT_FALSE(s.AfisCereri);
    EXPECT_TRUE(s.AfisSerieStatPlata);
    EXPECT_EQ(s.HeightRowBorderou, 40);
    EXPECT_EQ(s.HeightRowRaport, 36);
    EXPECT_EQ(s.AppWord, 2);
    EXPECT_EQ(s.DataCerereTiparita, 2);
    EXPECT_EQ(S(s.ServerCerere), S(ServerCerereImplicit));
    EXPECT_EQ(S(s.CuloareVenit), "1971210");
    EXPECT_EQ(S(s.Parola), "parola");
    EXPECT_EQ(s.LunaSetata, 4);
    EXPECT_EQ(s.AnSetat, 2024);
}

TEST_F(DialogOptiuni, MarimeaFontuluiSeVerificaLaAlegere) {
    // The limits themselves: Optiuni.VerificaMarimeaFontului.
    Setari s = Pornire();
    frmOptiuni f(s, Ini(), m_);
    auto* lblFont = Gaseste<QLabel>(f, "lblFont");
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(73);
    font.setItalic(true);
    f.AlegeFont(font);
    EXPECT_EQ(m_.Texte(MesajeInregistrate::Fel::Avertisment),
              QStringList{QStringLiteral("Marimea caracterelor nu poate fi mai mare de 72")});
    EXPECT_EQ(S(lblFont->text()), "DejaVu Serif, 12, B, U") << "the previous font stays";
    EXPECT_FALSE(QFile::exists(Ini()));

    // OK keeps the previous font; a size within the limits then goes through.
    m_.mesaje.clear();
    f.OK();
    EXPECT_TRUE(m_.mesaje.empty());
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(Citeste("Fonturi", "FontSize0"), "12");
    EXPECT_EQ(S(s.FontName0), "DejaVu Serif");
    EXPECT_FALSE(s.FontI0);
    font.setPointSize(72);
    f.AlegeFont(font);
    EXPECT_EQ(S(lblFont->text()), "DejaVu Sans, 72, I");
    f.OK();
    EXPECT_TRUE(m_.mesaje.empty());
    EXPECT_EQ(s.FontSize0, 72);
    EXPECT_EQ(Citeste("Fonturi", "FontSize0"), "72");
}

TEST_F(DialogOptiuni, RenuntaNuSchimbaNimic) {
    Setari s = Pornire();
    frmOptiuni f(s, Ini(), m_);
    Gaseste<QCheckBox>(f, "chkReteaSetat")->setChecked(true);
    Gaseste<QLineEdit>(f, "txtAnexa3")->setText(QStringLiteral("Alt.xls"));
    f.AlegeCuloare(QColor(1, 2, 3));
    Gaseste<QPushButton>(f, "cmdCancel")->click();
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_FALSE(QFile::exists(Ini()));
    EXPECT_TRUE(s == Pornire());
    EXPECT_TRUE(m_.mesaje.empty());
}

TEST_F(DialogOptiuni, StergeCuloareaGolesteFundalulSiCheia) {
    ServiciuFisiere::ScrieIni(Ini(), QStringLiteral("Generale"), QStringLiteral("CuloareVenit"), QStringLiteral("255"));
    Setari s = Pornire();
    frmOptiuni f(s, Ini(), m_);
    auto* lblFundal = Gaseste<QLabel>(f, "lblFundal");
    ASSERT_TRUE(lblFundal->autoFillBackground());
    Gaseste<QPushButton>(f, "cmdDelColor")->click();
    EXPECT_FALSE(lblFundal->autoFillBackground());
    Gaseste<QPushButton>(f, "cmdOK")->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(s.CuloareVenit.isEmpty());
    EXPECT_EQ(Citeste("Generale", "CuloareVenit"), "");
}

} // namespace
