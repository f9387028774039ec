#include "maintenance/CopieInFundal.h"

#include "base/Eroare.h"

CopieInFundal::CopieInFundal(const LocatieBD& loc, const QDateTime& acum, QObject* parinte)
    : QObject(parinte), loc_(loc), acum_(acum) {}

CopieInFundal::~CopieInFundal() {
    opreste_ = true;
    if (fir_) fir_->wait();
}

bool CopieInFundal::Lucreaza() const {
    return fir_ && fir_->isRunning();
}

void CopieInFundal::Porneste() {
    fir_.reset(QThread::create([this] {
        Copii::Progres p;
        p.opreste = &opreste_;
        int ultim = -1;
        p.pas = [&](qint64 facute, qint64 total) {
            const int procent = total > 0 ? int(facute * 100 / total) : 100;
            if (procent != ultim) Q_EMIT progres(ultim = procent);
        };
        QString fisier, eroare;
        try {
            fisier = Copii::Copiaza(loc_, acum_, p);
            Q_EMIT copiata(fisier);
            Copii::VerificaSiRoteste(fisier, p);
        } catch (const Eroare& e) {
            eroare = e.text();
        }
        Q_EMIT gata(fisier, eroare);
    }));
    fir_->start(QThread::LowPriority);
}
