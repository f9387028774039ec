#include "shell/Foldere.h"
#include "shell/Pornire.h"
#include "shell/UiMesaje.h"
#include "shell/frmMain.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ferolanta"));
    QApplication::setOrganizationName(QStringLiteral("Ferolanta"));

    UiMesaje mesaje;
    RezultatPornire pornire = PornesteBaza(Foldere::ApplicationPath(), Foldere::FolderLivrat(), mesaje);
    if (pornire.stare != RezultatPornire::Stare::Deschisa)
        return 0;

    frmMain fereastra(*pornire.bd);
    fereastra.show();
    return app.exec();
}
