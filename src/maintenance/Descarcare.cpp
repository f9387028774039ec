#include "maintenance/Descarcare.h"

#include <QEventLoop>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

bool Descarcare::AdresaPermisa(const QUrl& adresa) {
    if (!adresa.isValid() || adresa.host().isEmpty()) return false;
    const QString schema = adresa.scheme().toLower();
    if (schema == u"https") return true;
    if (schema != u"http") return false;
    const QString gazda = adresa.host().toLower();
    if (gazda == u"localhost") return true;
    const QHostAddress ip(gazda);
    return !ip.isNull() && ip.isLoopback();
}

Descarcare::Raspuns Descarcare::Descarca(const QUrl& adresa, int timpMaximMs, const Progres& progres) {
    Raspuns r;
    if (!AdresaPermisa(adresa)) {
        r.stare = Raspuns::Stare::Refuzat;
        return r;
    }
    QNetworkAccessManager retea;
    QNetworkRequest cerere(adresa);
    // A redirect to plain HTTP or to another server could hand us somebody else's file.
    cerere.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    cerere.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    QNetworkReply* raspuns = retea.get(cerere);

    QEventLoop bucla;
    QTimer ceas;
    ceas.setSingleShot(true);
    bool expirat = false;
    QObject::connect(&ceas, &QTimer::timeout, &bucla, [&] {
        expirat = true;
        raspuns->abort();
    });
    QObject::connect(raspuns, &QNetworkReply::downloadProgress, &ceas, [&](qint64 primit, qint64 total) {
        ceas.start(timpMaximMs);
        if (progres) progres(primit, total);
    });
    QObject::connect(raspuns, &QNetworkReply::finished, &bucla, &QEventLoop::quit);
    ceas.start(timpMaximMs);
    if (!raspuns->isFinished()) bucla.exec();

    r.status = raspuns->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (expirat)
        r.stare = Raspuns::Stare::Expirat;
    else if (raspuns->error() == QNetworkReply::InsecureRedirectError ||
             raspuns->error() == QNetworkReply::TooManyRedirectsError)
        r.stare = Raspuns::Stare::Refuzat;
    else if (raspuns->error() != QNetworkReply::NoError)
        r.stare = Raspuns::Stare::Eroare;
    else {
        r.stare = Raspuns::Stare::Primit;
        r.corp = raspuns->readAll();
        r.lungime = raspuns->rawHeader("Content-Length");
    }
    delete raspuns;
    return r;
}
