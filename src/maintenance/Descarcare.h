#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <functional>

// Fetching one file from the update server. Every request is a GET with a time-out, only to an
// address the program may trust, and it never follows a redirect to another place.
namespace Descarcare {

// How long a request may go without receiving anything before it is given up.
inline constexpr int TimpMaximImplicitMs = 3000;

// An address a download may come from: HTTPS anywhere, plain HTTP only on this computer.
bool AdresaPermisa(const QUrl& adresa);

struct Raspuns {
    enum class Stare { Primit, Refuzat, Eroare, Expirat };
    Stare stare = Stare::Eroare;
    int status = 0; // the HTTP status; 0 when none came
    QByteArray corp;
    QByteArray lungime; // the Content-Length header as sent; empty when absent

    // Status 200 with a body that arrived whole.
    bool Reusit() const { return stare == Stare::Primit && status == 200; }
};

// Fetches `adresa` and waits for it on the calling thread's own event loop, so it belongs on a
// thread other than the window's. A redirect is followed only to the same scheme, host and port.
// `timpMaximMs` counts from the last byte received: a large file that keeps coming is not cut.
// `progres`, when given, hears the bytes received and the total (-1 when unknown), on this thread.
using Progres = std::function<void(qint64 primit, qint64 total)>;
Raspuns Descarca(const QUrl& adresa, int timpMaximMs = TimpMaximImplicitMs, const Progres& progres = {});

} // namespace Descarcare
