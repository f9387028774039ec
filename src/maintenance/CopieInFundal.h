#pragma once

#include "maintenance/Copii.h"
#include "store/BazaDate.h"

#include <QObject>
#include <QThread>
#include <atomic>
#include <memory>

// A copy of the database made on a thread of its own while the clerk works: the page copy, then its
// check and the removal of older copies. Its signals reach the thread that made the object.
class CopieInFundal : public QObject {
    Q_OBJECT
public:
    CopieInFundal(const LocatieBD& loc, const QDateTime& acum, QObject* parinte = nullptr);
    // A copy still at work is stopped: what it wrote is removed, nothing else is touched.
    ~CopieInFundal() override;

    void Porneste();
    bool Lucreaza() const;

Q_SIGNALS:
    void progres(int procent);
    // The copy is whole; its check follows.
    void copiata(const QString& fisier);
    // `eroare` is empty when the copy is made and checked.
    void gata(const QString& fisier, const QString& eroare);

private:
    LocatieBD loc_;
    QDateTime acum_;
    std::atomic<bool> opreste_ = false;
    std::unique_ptr<QThread> fir_;
};
