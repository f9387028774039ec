#include "cases/UiCampuriAdeverinta.h"

#include "base/Ceas.h"
#include "ui/UiDataOptionala.h"
#include "store/Schema.h"

#include <QFormLayout>
#include <QLineEdit>

QLineEdit* CampuriAdeverinta(QWidget* parinte, QFormLayout* formular, const char* numeNr,
                             std::array<UiDataOptionala*, 3>& date) {
    auto* nr = new QLineEdit(parinte);
    nr->setObjectName(QLatin1String(numeNr));
    if (const CampSchema* c = Schema::Camp(QStringLiteral("Adeverinte"), QStringLiteral("NrAdev")); c && c->marime > 0)
        nr->setMaxLength(c->marime);
    formular->addRow(QStringLiteral("Nr. adeverinta:"), nr);
    const QString etichete[3] = {QStringLiteral("Data adeverintei:"), QStringLiteral("Data depunerii:"),
                                 QStringLiteral("Data expirarii:")};
    for (size_t i = 0; i < date.size(); ++i) {
        date[i] = new UiDataOptionala(parinte);
        date[i]->setObjectName(QStringLiteral("dtpData_%1").arg(i));
        date[i]->setData(Ceas::Azi());
        date[i]->setData(QDate());
        formular->addRow(etichete[i], date[i]);
    }
    return nr;
}
