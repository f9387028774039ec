#include "app/frmMain.h"

#include "app/Pornire.h"
#include "app/frmAbout.h"
#include "app/frmOptiuni.h"
#include "app/frmParola.h"
#include "base/Ceas.h"
#include "base/Foldere.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "base/Texte.h"
#include "cases/Adeverinte.h"
#include "cases/ModelCereri.h"
#include "cases/frmAddCerere.h"
#include "cases/frmISR.h"
#include "cases/frmAdeverinte.h"
#include "cases/frmMembrii.h"
#include "maintenance/FisiereWeb.h"
#include "maintenance/frmUpdateLog.h"
#include "maintenance/frmMentenanta.h"
#include "maintenance/frmImport.h"
#include "reference/LunaLucru.h"
#include "reference/frmBaremBun.h"
#include "reference/frmChLunaAn.h"
#include "reference/frmGenerareAn.h"
#include "reference/frmMotive.h"
#include "reference/frmSate.h"
#include "reports/frmBorderou.h"
#include "reports/frmRapoarte.h"
#include "reports/frmRapoarte2.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFunctii.h"
#include "ui/UiMargine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateEdit>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>


frmMain::frmMain(Program& p, Mesaje& m, QWidget* parinte)
    : QMainWindow(parinte), p_(p), m_(m), model_(new ModelCereri(p.bd, this)) {
    setObjectName(QStringLiteral("frmMain"));
    MediuDocumente = MediuDeschidere::Sistem();
    MediuDocumente.DeschideImplicit = [](const QUrl& u) { return QDesktopServices::openUrl(u); };
    auto* centru = new QWidget(this);
    auto* asezare = new QVBoxLayout(centru);
    auto* imparte = new QSplitter(Qt::Vertical, centru);
    auto* sus = new QWidget(imparte);
    auto* jos = new QWidget(imparte);
    construiesteCautarea(sus);
    construiesteListeleDeJos(jos);
    imparte->setStretchFactor(0, 3);
    imparte->setStretchFactor(1, 1);
    asezare->addWidget(imparte);
    setCentralWidget(centru);
    construiesteMeniurile();
    construiesteBaraDeStare();
    resize(1200, 760);
    Form_Load();
}

void frmMain::construiesteCautarea(QWidget* sus) {
    auto* asezare = new QVBoxLayout(sus);
    asezare->setContentsMargins(0, 0, 0, 0);
    auto* fraCaut = new QGroupBox(QStringLiteral("Cautare"), sus);
    fraCaut->setObjectName(QStringLiteral("fraCaut"));
    auto* grila = new QGridLayout(fraCaut);
    const char* etichete[] = {"CNP", "Nume", "Prenume", "Nr cerere", "Nr dosar"};
    for (int i = 0; i < 5; ++i) {
        grila->addWidget(new QLabel(QString::fromLatin1(etichete[i]), fraCaut), 0, i);
        txtCauta[size_t(i)] = new QLineEdit(fraCaut);
        txtCauta[size_t(i)]->setObjectName(QStringLiteral("txtCauta_%1").arg(i));
        connect(txtCauta[size_t(i)], &QLineEdit::returnPressed, this, &frmMain::cmdCauta_Click);
        grila->addWidget(txtCauta[size_t(i)], 1, i);
    }
    txtCauta[0]->setMaxLength(13);
    grila->addWidget(new QLabel(QStringLiteral("Str /sat"), fraCaut), 0, 5);
    cboStrada = new QComboBox(fraCaut);
    cboStrada->setObjectName(QStringLiteral("cboStrada"));
    cboStrada->setEditable(true);
    cboStrada->setMinimumWidth(160);
    grila->addWidget(cboStrada, 1, 5);
    grila->addWidget(new QLabel(QStringLiteral("Stare"), fraCaut), 0, 6);
    lstStare = new QListWidget(fraCaut);
    lstStare->setObjectName(QStringLiteral("lstStare"));
    lstStare->setSelectionMode(QAbstractItemView::MultiSelection);
    lstStare->setMaximumHeight(64);
    lstStare->setMinimumWidth(190);
    lstStare->installEventFilter(this);
    cboStrada->installEventFilter(this);
    grila->addWidget(lstStare, 1, 6, 2, 1);
    cmdCauta = new QPushButton(QStringLiteral("Cauta"), fraCaut);
    cmdCauta->setObjectName(QStringLiteral("cmdCauta"));
    connect(cmdCauta, &QPushButton::clicked, this, &frmMain::cmdCauta_Click);
    grila->addWidget(cmdCauta, 1, 7);
    lblRezul = new QLabel(fraCaut);
    lblRezul->setObjectName(QStringLiteral("lblRezul"));
    grila->addWidget(lblRezul, 2, 0, 1, 4);
    asezare->addWidget(fraCaut);

    auto* butoane = new QHBoxLayout;
    cmdAdd = Buton(sus, butoane, "cmdAdd", QStringLiteral("Adauga cerere"));
    cmdEdit = Buton(sus, butoane, "cmdEdit", QStringLiteral("Modifica cerere"));
    cmdDelete = Buton(sus, butoane, "cmdDelete", QStringLiteral("Sterge cerere"));
    butoane->addSpacing(16);
    cmdCerere = Buton(sus, butoane, "cmdCerere", QStringLiteral("Tiparire &cerere"));
    cmdCerere->setToolTip(QStringLiteral("tiparire cerere si declaratie de venit"));
    cmdSelect = Buton(sus, butoane, "cmdSelect", QStringLiteral("Cerere..."));
    cmdDeclaratie = Buton(sus, butoane, "cmdDeclaratie", QStringLiteral("Declaratie de venit"));
    cmdFisaCalcul = Buton(sus, butoane, "cmdFisaCalcul", QStringLiteral("Tiparire &Fisa de calcul"));
    cmdFisaCalcul->setToolTip(QStringLiteral("Tiparire Fisa de calcul"));
    auto* lblDataFisa = new QLabel(QStringLiteral("Data emiterii fisei"), sus);
    butoane->addWidget(lblDataFisa);
    dtpDataFisa = new UiDataOptionala(sus);
    dtpDataFisa->setObjectName(QStringLiteral("dtpDataFisa"));
    // Empty, the sheet is dated the day it is printed; ticked, it starts from today.
    dtpDataFisa->setData(Ceas::Azi());
    dtpDataFisa->setData(QDate());
    lblDataFisa->setBuddy(dtpDataFisa->editor());
    butoane->addWidget(dtpDataFisa);
    butoane->addStretch();
    cmdExit = Buton(sus, butoane, "cmdExit", QStringLiteral("Iesire"));
    cmdSelect->setEnabled(false);
    cmdCerere->setEnabled(false);
    mnuCerere = new QMenu(QStringLiteral("Cerere"), cmdSelect);
    mnuCerere->setObjectName(QStringLiteral("mnuCerere"));
    const auto formular = [this](const char* nume, const QString& text, ComenziWeb::Comanda c) {
        QAction* a = mnuCerere->addAction(text);
        a->setObjectName(QString::fromLatin1(nume));
        connect(a, &QAction::triggered, this, [this, c] { TiparesteWeb(c); });
    };
    formular("mnuAnexa1", QStringLiteral("Anexa 1"), ComenziWeb::Comanda::mnuAnexa1);
    formular("mnuAnexa1a", QStringLiteral("Anexa 1a"), ComenziWeb::Comanda::mnuAnexa1a);
    cmdSelect->setMenu(mnuCerere);
    connect(cmdCerere, &QPushButton::clicked, this, [this] { TiparesteWeb(ComenziWeb::Comanda::cmdCerere); });
    connect(cmdFisaCalcul, &QPushButton::clicked, this, &frmMain::cmdFisaCalcul_Click);
    connect(cmdDeclaratie, &QPushButton::clicked, this, &frmMain::cmdDeclaratie_Click);
    connect(cmdAdd, &QPushButton::clicked, this, &frmMain::cmdAdd_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmMain::cmdEdit_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmMain::cmdDelete_Click);
    connect(cmdExit, &QPushButton::clicked, this, &frmMain::Iesire);
    asezare->addLayout(butoane);

    lvwCereri = new QTableView(sus);
    lvwCereri->setObjectName(QStringLiteral("lvwCereri"));
    lvwCereri->setModel(model_);
    lvwCereri->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwCereri->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwCereri->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvwCereri->verticalHeader()->hide();
    lvwCereri->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    lvwCereri->setColumnHidden(ModelCereri::ID, true);
    lvwCereri->setAlternatingRowColors(true);
    // Widths from the longest texts each column usually holds: sizing by content would read
    // every row of a large office's list.
    const char* tipare[] = {"",
                            "00000 0000/00",
                            "Cu sot",
                            "MODIFICARE CUANTUM",
                            "00.00.0000",
                            "Constantinescu Alexandra",
                            "0000000000000",
                            "Bucuresti, Strada Mihai Eminescu, nr. 120",
                            "00000.00",
                            "0000.00",
                            "Nr. membrii",
                            "Nr. copii"};
    for (int i = 1; i < ModelCereri::NrColoane; ++i)
        lvwCereri->setColumnWidth(i, fontMetrics().horizontalAdvance(QString::fromLatin1(tipare[i])) + 18);
    lvwCereri->horizontalHeader()->setSectionsClickable(true);
    lvwCereri->horizontalHeader()->setSortIndicatorShown(false);
    connect(lvwCereri->horizontalHeader(), &QHeaderView::sectionClicked, this, &frmMain::ColumnClick);
    connect(lvwCereri->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { ItemClick(); });
    connect(lvwCereri, &QTableView::doubleClicked, this, &frmMain::cmdEdit_Click);
    lvwCereri->installEventFilter(this);
    connect(
        model_, &ModelCereri::EroareCitire, this, [this](const QString& text) { m_.Critic(text); },
        Qt::QueuedConnection);
    asezare->addWidget(lvwCereri, 1);
}

void frmMain::construiesteListeleDeJos(QWidget* jos) {
    auto* asezare = new QVBoxLayout(jos);
    asezare->setContentsMargins(0, 0, 0, 0);
    opt = new QTabWidget(jos);
    opt->setObjectName(QStringLiteral("opt"));
    auto buton = [&](QWidget* panou, QHBoxLayout* rand, QPushButton*& b, const char* nume, const QString& text) {
        b = new QPushButton(text, panou);
        b->setObjectName(QString::fromLatin1(nume));
        b->setEnabled(false);
        rand->addWidget(b);
    };
    auto panou = [&](QTreeWidget*& l, const char* nume, const QString& titluTab, const QStringList& coloane,
                     QLabel** titlu) {
        auto* p = new QWidget(opt);
        auto* v = new QVBoxLayout(p);
        v->setContentsMargins(2, 2, 2, 2);
        if (titlu) {
            *titlu = new QLabel(p);
            v->addWidget(*titlu);
        }
        l = new QTreeWidget(p);
        l->setObjectName(QString::fromLatin1(nume));
        l->setRootIsDecorated(false);
        l->setHeaderLabels(coloane.isEmpty() ? QStringList{QString()} : coloane);
        if (!coloane.isEmpty()) l->setColumnHidden(0, true);
        v->addWidget(l, 1);
        opt->addTab(p, titluTab);
        return p;
    };
    QWidget* anchete =
        panou(lvwAnchete, "lvwAnchete", QStringLiteral("Anchete"),
              {QStringLiteral("ID"), QStringLiteral("Data"), QStringLiteral("Nr membrii"), QStringLiteral("Nr copii"),
               QStringLiteral("Data expirarii"), QStringLiteral("Motivul expirarii")},
              &lblAnchete);
    auto* randAnchete = new QHBoxLayout;
    buton(anchete, randAnchete, cmdAddAncheta, "cmdAddAncheta", QStringLiteral("Adauga ancheta"));
    buton(anchete, randAnchete, cmdEditAncheta, "cmdEditAncheta", QStringLiteral("Modifica ancheta"));
    buton(anchete, randAnchete, cmdDelAncheta, "cmdDelAncheta", QStringLiteral("Sterge ancheta"));
    buton(anchete, randAnchete, cmdPrintAncheta, "cmdPrintAncheta", QStringLiteral("Tipareste ancheta"));
    randAnchete->addStretch();
    cmdAddAncheta->setEnabled(true);
    static_cast<QVBoxLayout*>(anchete->layout())->addLayout(randAnchete);
    panou(lvwAdeverinte, "lvwAdeverinte", QStringLiteral("Adeverinte"),
          {QStringLiteral("ID"), QStringLiteral("Membru"), QStringLiteral("Tip adeverinta"), QStringLiteral("Nr adev"),
           QStringLiteral("Data adeverintei"), QStringLiteral("Data depunerii"), QStringLiteral("Data expirarii"),
           QStringLiteral("Curenta")},
          nullptr);
    // No payments tab: nothing records what a request was paid in a month. The calendar of
    // working months holds only months, the request only its present amount, and a disposition
    // is a decision, not a payment.
    QWidget* dispozitii =
        panou(lvwDispozitii, "lvwDispozitii", QStringLiteral("Dispozitii"),
              {QStringLiteral("ID"), QStringLiteral("Nr disp"), QStringLiteral("Data"), QStringLiteral("Tip decizie"),
               QStringLiteral("Cuantum"), QStringLiteral("Luna"), QStringLiteral("Anul")},
              &lblDispozitii);
    auto* randDisp = new QHBoxLayout;
    buton(dispozitii, randDisp, cmdAddDisp, "cmdAddDisp", QStringLiteral("Adauga dispozitie"));
    buton(dispozitii, randDisp, cmdEditDisp, "cmdEditDisp", QStringLiteral("Modifica dispozitie"));
    buton(dispozitii, randDisp, cmdDelDisp, "cmdDelDisp", QStringLiteral("Sterge dispozitie"));
    buton(dispozitii, randDisp, cmdPrintDisp, "cmdPrintDisp", QStringLiteral("Tipareste dispozitia"));
    randDisp->addStretch();
    cmdAddDisp->setEnabled(true);
    static_cast<QVBoxLayout*>(dispozitii->layout())->addLayout(randDisp);
    connect(cmdAddDisp, &QPushButton::clicked, this, &frmMain::cmdAddDisp_Click);
    connect(cmdEditDisp, &QPushButton::clicked, this, &frmMain::cmdEditDisp_Click);
    connect(cmdDelDisp, &QPushButton::clicked, this, &frmMain::cmdDelDisp_Click);
    connect(cmdPrintDisp, &QPushButton::clicked, this, &frmMain::cmdPrintDisp_Click);
    connect(lvwDispozitii, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* i) {
        lvwDispozitii->setCurrentItem(i);
        cmdEditDisp_Click();
    });
    connect(cmdPrintAncheta, &QPushButton::clicked, this,
            [this] { TiparesteWeb(ComenziWeb::Comanda::cmdPrintAncheta); });
    connect(cmdAddAncheta, &QPushButton::clicked, this, &frmMain::cmdAddAncheta_Click);
    connect(cmdEditAncheta, &QPushButton::clicked, this, &frmMain::cmdEditAncheta_Click);
    connect(cmdDelAncheta, &QPushButton::clicked, this, &frmMain::cmdDelAncheta_Click);
    connect(lvwAnchete, &QTreeWidget::itemDoubleClicked, this, &frmMain::cmdEditAncheta_Click);
    asezare->addWidget(opt);

    // The notice of expiring certificates slides up from the bottom edge.
    picNotific = new QLabel(this);
    picNotific->setObjectName(QStringLiteral("picNotific"));
    picNotific->setStyleSheet(
        QStringLiteral("QLabel { background: #fff8c0; border: 1px solid #b09000; padding: 8px; }"));
    picNotific->setAlignment(Qt::AlignCenter);
    picNotific->setCursor(Qt::PointingHandCursor);
    picNotific->installEventFilter(this);
    picNotific->hide();
    timerNotificare_ = new QTimer(this);
    timerNotificare_->setInterval(100);
    connect(timerNotificare_, &QTimer::timeout, this, [this] {
        const int tinta = height() - picNotific->height() - statusBar()->height() - 8;
        if (picNotific->y() <= tinta) {
            timerNotificare_->stop();
            return;
        }
        picNotific->move(picNotific->x(), std::max(tinta, picNotific->y() - 4));
    });
}

QAction* frmMain::meniu(QMenu* parinte, const char* nume, const QString& text, bool activ) {
    QAction* a = parinte->addAction(text);
    a->setObjectName(QString::fromLatin1(nume));
    a->setEnabled(activ);
    return a;
}

void frmMain::construiesteMeniurile() {
    QMenuBar* bara = menuBar();
    auto meniuPrincipal = [&](const char* nume, const QString& text) {
        QMenu* mm = bara->addMenu(text);
        mm->setObjectName(QString::fromLatin1(nume));
        return mm;
    };
    // Entries whose windows come later stay visible but disabled.
    QMenu* dataGen = meniuPrincipal("mnuDataGen", QStringLiteral("Date generale"));
    connect(meniu(dataGen, "mnuDatePrimarie", QStringLiteral("Datele primariei..."), true), &QAction::triggered, this,
            &frmMain::mnuDatePrimarie_Click);
    connect(meniu(dataGen, "mnuBarem", QStringLiteral("Nivel venituri..."), true), &QAction::triggered, this, [this] {
        frmBaremBun f(p_.bd, m_, this);
        ArataModal(f);
    });
    meniu(dataGen, "mnuJudete", QStringLiteral("Judete..."), true); // never had a window
    connect(meniu(dataGen, "mnuSate", QStringLiteral("Sate/strazi..."), true), &QAction::triggered, this, [this] {
        frmSate f(p_.bd, m_, this);
        ArataModal(f);
    });
    connect(meniu(dataGen, "mnuMotive", QStringLiteral("Motive..."), true), &QAction::triggered, this, [this] {
        frmMotive f(p_.bd, m_, this);
        ArataModal(f);
    });
    connect(meniu(dataGen, "mnuSetLunaCurenta", QStringLiteral("Setare luna curenta..."), true), &QAction::triggered,
            this, [this] { ArataLunaLucru(true); });
    connect(meniu(dataGen, "mnuISR", QStringLiteral("Valoare ISR"), true), &QAction::triggered, this, [this] {
        frmISR f(p_.bd, m_, this);
        ArataModal(f);
    });
    connect(meniu(dataGen, "mnuGenAnNou", QStringLiteral("Generare An Nou..."), true), &QAction::triggered, this,
            [this] {
                frmGenerareAn f(p_, m_, this);
                ArataModal(f);
            });
    dataGen->addSeparator();
    connect(meniu(dataGen, "mnuExit", QStringLiteral("Iesire"), true), &QAction::triggered, this, &frmMain::Iesire);

    QMenu* acte = meniuPrincipal("mnuActe", QStringLiteral("Acte"));
    const auto web = [&](const char* nume, const QString& text, ComenziWeb::Comanda c) {
        connect(meniu(acte, nume, text, true), &QAction::triggered, this, [this, c] { TiparesteWeb(c); });
    };
    web("mnuCerereGoala", QStringLiteral("Listare Cerere Goala ..."), ComenziWeb::Comanda::mnuCerereGoala);
    web("mnucerereMod", QStringLiteral("Listare Cerere modificare Goala"), ComenziWeb::Comanda::mnucerereMod);
    web("mnuAnchetaGoala", QStringLiteral("Listare Ancheta Goala ..."), ComenziWeb::Comanda::mnuAnchetaGoala);
    web("mnuCerereSelectata", QStringLiteral("Listare Cerere Selectata ..."), ComenziWeb::Comanda::mnuAnexa1);

    QMenu* baza = meniuPrincipal("mnuBazaDate", QStringLiteral("Baza date"));
    connect(meniu(baza, "mnuAdev", QStringLiteral("Adeverinte scolarizare..."), true), &QAction::triggered, this,
            [this] {
                frmAdeverinte f(p_.bd, m_, this);
                ArataModal(f);
            });
    connect(meniu(baza, "mnuMembrii", QStringLiteral("Membrii..."), true), &QAction::triggered, this, [this] {
        frmMembrii f(p_.bd, m_, this);
        ArataModal(f);
    });
    mnuToateDisp = meniu(baza, "mnuToateDisp", QStringLiteral("Generare dispozitii ..."), true);
    connect(mnuToateDisp, &QAction::triggered, this, &frmMain::mnuToateDisp_Click);
    mnuAnexa2 = meniu(baza, "mnuAnexa2", TextTiparire::MnuAnexa2, true);
    connect(mnuAnexa2, &QAction::triggered, this, &frmMain::mnuAnexa2_Click);
    connect(meniu(baza, "mnuImport", QStringLiteral("Import baza de date veche..."), true), &QAction::triggered, this,
            [this] {
                frmImport f(p_.bd, m_, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")), this);
                ArataModal(f);
                // The imported office's streets, statuses and requests, as at start.
                if (f.Importat()) Form_Load();
            });

    QMenu* rapoarte = meniuPrincipal("mnuRapoarte", QStringLiteral("Rapoarte"));
    connect(meniu(rapoarte, "mnuFisa", QStringLiteral("Fisa de calcul ..."), true), &QAction::triggered, this,
            &frmMain::cmdFisaCalcul_Click);
    connect(meniu(rapoarte, "mnuBorderou", QStringLiteral("Borderou..."), true), &QAction::triggered, this, [this] {
        frmBorderou f(p_, m_, this);
        ArataModal(f);
    });
    connect(meniu(rapoarte, "mnuRap", QStringLiteral("Rapoarte ..."), true), &QAction::triggered, this, [this] {
        frmRapoarte f(p_, m_, this);
        ArataModal(f);
    });
    connect(meniu(rapoarte, "mnuRap2", QStringLiteral("Rapoarte2 ..."), true), &QAction::triggered, this, [this] {
        frmRapoarte2 f(p_, m_, this);
        ArataModal(f);
    });

    QMenu* intretinere = meniuPrincipal("mnuIntretinere", QStringLiteral("Intretinere"));
    connect(meniu(intretinere, "mnuPassword", QStringLiteral("Parola..."), true), &QAction::triggered, this, [this] {
        frmParola f(p_, m_, this);
        f.exec();
    });
    connect(meniu(intretinere, "mnuMentenanta", QStringLiteral("Mentenanta..."), true), &QAction::triggered, this,
            [this] {
                frmMentenanta f(p_, m_, this);
                ArataModal(f);
            });
    connect(meniu(intretinere, "mnuCopie", QStringLiteral("Copie de siguranta acum"), true), &QAction::triggered, this,
            &frmMain::mnuCopie_Click);
    connect(meniu(intretinere, "mnuRestaurare", QStringLiteral("Restaurare copie..."), true), &QAction::triggered,
            this, &frmMain::mnuRestaurare_Click);
    connect(meniu(intretinere, "mnuOptiuni", QStringLiteral("Optiuni..."), true), &QAction::triggered, this, [this] {
        frmOptiuni f(p_.setari, p_.FisierSetari(), m_, this);
        f.exec();
    });

    QMenu* ajutor = meniuPrincipal("mnuAjutor", QStringLiteral("Ajutor"));
    meniu(ajutor, "mnuContinut", QStringLiteral("Continut"), true);
    meniu(ajutor, "mnuIndex", QStringLiteral("Index"), true);
    connect(meniu(ajutor, "mnuAbout", QStringLiteral("Despre program ..."), true), &QAction::triggered, this, [this] {
        frmAbout f(p_.bd, this);
        f.exec();
    });
    ajutor->addSeparator();
    connect(meniu(ajutor, "mnuExit2", QStringLiteral("Iesire"), true), &QAction::triggered, this, &frmMain::Iesire);
}

void frmMain::construiesteBaraDeStare() {
    for (size_t i = 0; i < sbrMain.size(); ++i) {
        sbrMain[i] = new QLabel(this);
        sbrMain[i]->setObjectName(QStringLiteral("sbrMain_%1").arg(i + 1));
        sbrMain[i]->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        sbrMain[i]->installEventFilter(this);
        statusBar()->addWidget(sbrMain[i], i == 3 ? 1 : 0);
    }
}

void frmMain::Form_Load() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    LaMargine(m_, [&] {
        cboStrada->clear();
        for (const ElementLista& e : ListaCereri::Strazi(p_.bd))
            cboStrada->addItem(e.text, e.id);
        cboStrada->setCurrentIndex(-1);
        // A new office is led straight to its own data once the window is up.
        if (!ScrieTitlul(true)) QTimer::singleShot(0, this, &frmMain::mnuDatePrimarie_Click);
        FiltruCautare f;
        f.LoadTipCerere = p_.setari.LoadTipCerere;
        ListaCereri(f);
        lstStare->clear();
        for (const ElementLista& e : ListaCereri::Stari(p_.bd))
            (new QListWidgetItem(e.text, lstStare))->setData(Qt::UserRole, e.id);
    });
    QApplication::restoreOverrideCursor();

    const QDate azi = Ceas::Azi();
    sbrMain[0]->setText(QStringLiteral(" %1 %2 %3 ").arg(azi.day()).arg(LuniAn()[azi.month() - 1]).arg(azi.year()));
    ScrieLunaActiva();
    sbrMain[3]->setText(ContactSuport);
    QFile versiune(QDir(p_.applicationPath).filePath(QStringLiteral("version.txt")));
    if (versiune.open(QIODevice::ReadOnly))
        sbrMain[4]->setText(QStringLiteral("Versiune: ") + QString::fromUtf8(versiune.readAll()).trimmed());
    else
        sbrMain[4]->setText(QStringLiteral("Versiune: %1").arg(QStringLiteral(FEROLANTA_VERSIUNE)));

    if (p_.setari.NotificareActe) {
        LaMargine(m_, [&] {
            if (Adeverinte::ActeCareExpira(p_.bd, Ceas::Azi())) ArataNotificarea();
        });
    }
    QTimer::singleShot(1567, this, &frmMain::TimerMSG_UPD_Timer);
}

void frmMain::ArataNotificarea() {
    picNotific->setText(Adeverinte::TextNotificare(Ceas::Azi()));
    QFont f = picNotific->font();
    f.setPointSizeF(f.pointSizeF() * 1.5);
    picNotific->setFont(f);
    picNotific->adjustSize();
    picNotific->move(width() - picNotific->width() - 16, height());
    picNotific->show();
    picNotific->raise();
    timerNotificare_->start();
}

void frmMain::resizeEvent(QResizeEvent* e) {
    QMainWindow::resizeEvent(e);
    if (picNotific && picNotific->isVisible())
        picNotific->move(width() - picNotific->width() - 16,
                         height() - picNotific->height() - statusBar()->height() - 8);
}

void frmMain::TimerMSG_UPD_Timer() {
    ActivareComenzi();
    cmdPrintAncheta->setEnabled(cmdCerere->isEnabled());
    const auto server = Updater::Mediu::DinProgram(p_.setari.ServerActualizare, p_.applicationPath);
    const auto web = PunteWeb::MediuWeb::DinApplicationPath(p_.applicationPath, p_.setari.ServerCerere);
    if (server.Activ())
        Updater::InFundal<FisiereWeb::Rezultat>(
            this, [server, web] { return FisiereWeb::Actualizeaza(server, web); },
            [this](FisiereWeb::Rezultat r) {
                if (!r.paginaScrisa && !r.interogariScrise) return;
                ActivareComenzi();
                cmdPrintAncheta->setEnabled(cmdCerere->isEnabled());
            });
    // The printed forms use this font.
    if (!FontInstalat(FisiereWeb::NumeFont)) {
        m_.Informatie(QStringLiteral("Fontul 'Monotype Corsiva' nu este instalat."));
        // The system's font window installs it; the file comes from the server when the office has none.
        const QString folder = p_.applicationPath;
        Updater::InFundal<QString>(
            this, [server, folder] { return FisiereWeb::DescarcaFont(server, folder); },
            [](QString font) {
                if (!font.isEmpty()) QDesktopServices::openUrl(QUrl::fromLocalFile(font));
            });
    }
}

bool frmMain::ScrieTitlul(bool cuMesaj) {
    bool exista = false;
    const QString denumire = ListaCereri::DenumirePrimarie(p_.bd, &exista);
    setWindowTitle(exista ? QStringLiteral("Alocatii-207: ") + denumire
                          : QStringLiteral("Alocatii-207: Nu exista date!"));
    if (!exista && cuMesaj) m_.Informatie(QStringLiteral("Introduceti datele primariei!"));
    return exista;
}

void frmMain::ScrieLunaActiva() {
    sbrMain[2]->setText(LunaLucru::TextLunaActiva(p_.setari.LunaSetata, p_.setari.AnSetat));
}

FiltruCautare frmMain::FiltruDinControale() const {
    FiltruCautare f;
    f.CNP = txtCauta[0]->text().trimmed();
    f.Nume = txtCauta[1]->text().trimmed();
    f.Prenume = txtCauta[2]->text().trimmed();
    f.NrCerere = txtCauta[3]->text().trimmed();
    for (int i = 0; i < lstStare->count(); ++i)
        if (lstStare->item(i)->isSelected()) f.Stari << lstStare->item(i)->data(Qt::UserRole).toInt();
    f.LoadTipCerere = p_.setari.LoadTipCerere;
    f.Ordine = ListaCereri::NrCerere;
    return f;
}

void frmMain::cmdCauta_Click() {
    if (!VerificaBD(p_.bd, m_)) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    LaMargine(m_, [&] { ListaCereri(FiltruDinControale()); });
    ActivareComenzi();
    GolireFiltre();
    QApplication::restoreOverrideCursor();
}

void frmMain::ListaCereri(const FiltruCautare& f) {
    model_->Seteaza(f);
    lblRezul->setText(ListaCereri::TextRezultat(model_->rowCount()));
    if (model_->rowCount() > 0)
        SelecteazaRand(0);
    else
        ItemClick();
}

void frmMain::GolireFiltre() {
    for (QLineEdit* t : txtCauta)
        t->clear();
    cboStrada->setCurrentIndex(-1);
    cboStrada->setEditText(QString());
    lstStare->clearSelection();
}

void frmMain::ColumnClick(int coloana) {
    if (coloana == ModelCereri::NrCerere) {
        // The text of this column would put 10 before 9: the database orders it by number.
        cmdCauta_Click();
        return;
    }
    FiltruCautare f = model_->Filtru();
    f.Ordine = ModelCereri::Coloana(coloana);
    LaMargine(m_, [&] { ListaCereri(f); });
}

void frmMain::SelecteazaRand(int rand) {
    if (rand < 0 || rand >= model_->rowCount()) return;
    const QModelIndex i = model_->index(rand, ModelCereri::NrCerere);
    lvwCereri->selectionModel()->setCurrentIndex(i, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    lvwCereri->scrollTo(i);
}

int frmMain::RandSelectat() const {
    const QModelIndexList sel = lvwCereri->selectionModel()->selectedRows();
    return sel.isEmpty() ? -1 : sel.first().row();
}

void frmMain::ItemClick() {
    const RandCerere* r = model_->Rand(RandSelectat());
    LaMargine(m_, [&] {
        // The lower lists follow the selected row only: with no row, or a request gone, they are
        // empty and their commands off.
        if (r && ListaCereri::Citeste(p_.bd, r->CerereID).CerereID == 0) {
            ListeleCererii(0);
            m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            return;
        }
        ListeleCererii(r ? r->CerereID : 0);
    });
}

void frmMain::cmdAdd_Click() {
    if (!VerificaBD(p_.bd, m_)) return;
    LaMargine(m_, [&] {
        frmAddCerere f(p_.bd, p_.setari, m_, DeschidereCerere{1, 0, false, 0}, this);
        ArataModal(f);
        if (!f.ESTE_OK) return;
        const RandCerere r = ListaCereri::Citeste(p_.bd, f.CerereID());
        if (r.CerereID == 0) return;
        model_->Adauga(r);
        lblRezul->setText(ListaCereri::TextRezultat(model_->rowCount()));
        SelecteazaRand(model_->rowCount() - 1);
        // The first request of an empty list brings its commands on.
        ActivareComenzi();
        lvwCereri->setFocus();
    });
}

void frmMain::cmdEdit_Click() {
    if (!VerificaBD(p_.bd, m_)) return;
    const int rand = RandSelectat();
    const RandCerere* r = model_->Rand(rand);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati o cerere"));
        return;
    }
    LaMargine(m_, [&] {
        const qint64 cerereID = r->CerereID;
        frmAddCerere f(p_.bd, p_.setari, m_, DeschidereCerere{2, cerereID, false, 0}, this);
        if (!f.Gasita()) {
            m_.Informatie(TextRandNegasit);
            return;
        }
        ArataModal(f);
        if (!f.ESTE_OK) return;
        // Only this row is read again; the rest of the list stays as the search left it.
        const RandCerere nou = ListaCereri::Citeste(p_.bd, cerereID);
        if (nou.CerereID != 0) model_->Inlocuieste(rand, nou);
        SelecteazaRand(rand);
        lvwCereri->setFocus();
    });
}

void frmMain::cmdDelete_Click() {
    const int rand = RandSelectat();
    const RandCerere* r = model_->Rand(rand);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati o cerere"));
        return;
    }
    if (!VerificaBD(p_.bd, m_)) return;
    const bool stearsa = LaMargine(m_, [&] {
        const RandCerere actual = ListaCereri::Citeste(p_.bd, r->CerereID);
        if (actual.CerereID == 0) {
            m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            return false;
        }
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti cererea %1 ?").arg(r->NrCerere), {}, false))
            return false;
        ListaCereri::Sterge(p_.bd, r->CerereID);
        return true;
    });
    if (!stearsa) return;
    model_->Elimina(rand);
    if (model_->rowCount() > 0)
        SelecteazaRand(std::min(rand, model_->rowCount() - 1));
    else
        ItemClick();
    lblRezul->setText(model_->rowCount() == 0 ? QStringLiteral("0 cereri")
                                              : QStringLiteral("%1 cereri").arg(model_->rowCount()));
    ActivareComenzi();
}

void frmMain::ArataLunaLucru(bool dinMeniu) {
    frmChLunaAn f(p_, m_, this);
    if (f.exec() != QDialog::Accepted) return;
    // From the status bar the month goes to its own panel; from the menu it lands on the next
    // one, over the support line, as it always has.
    if (dinMeniu)
        sbrMain[3]->setText(LunaLucru::TextLunaActiva(p_.setari.LunaSetata, p_.setari.AnSetat));
    else
        ScrieLunaActiva();
}

void frmMain::Iesire() {
    if (m_.Intrebare(QStringLiteral("Sigur vreti sa parasiti programul?"))) QApplication::exit(0);
}

void frmMain::closeEvent(QCloseEvent* e) {
    e->ignore();
    Iesire();
}

bool frmMain::eventFilter(QObject* obiect, QEvent* e) {
    if (e->type() == QEvent::KeyPress) {
        const int tasta = static_cast<QKeyEvent*>(e)->key();
        if (obiect == lvwCereri) {
            if (tasta == Qt::Key_A) {
                cmdAdd_Click();
                return true;
            }
            if (tasta == Qt::Key_Return || tasta == Qt::Key_Enter) {
                cmdEdit_Click();
                return true;
            }
            if (tasta == Qt::Key_Delete) {
                cmdDelete_Click();
                return true;
            }
        } else if ((obiect == lstStare || obiect == cboStrada) && (tasta == Qt::Key_Return || tasta == Qt::Key_Enter)) {
            cmdCauta_Click();
            return true;
        }
    } else if (e->type() == QEvent::MouseButtonRelease && obiect == sbrMain[2]) {
        ArataLunaLucru(false);
        return true;
    } else if (e->type() == QEvent::MouseButtonRelease && obiect == sbrMain[4]) {
        frmUpdateLog f(Updater::Mediu::DinProgram(p_.setari.ServerActualizare, p_.applicationPath), this);
        f.exec();
        return true;
    } else if (e->type() == QEvent::MouseButtonRelease && obiect == picNotific) {
        picNotific_Click();
        return true;
    }
    return QMainWindow::eventFilter(obiect, e);
}
