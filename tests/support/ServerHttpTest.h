#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QMap>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <memory>
#include <vector>

// A web server on this computer with canned answers, one per path. It answers on the thread that
// made it, whenever that thread runs its event loop.
class ServerHttpTest {
public:
    struct Raspuns {
        int status = 200;
        QByteArray corp;
        QByteArray locatie; // a Location header, for a redirect
        bool tace = false;  // takes the request and never answers
    };

    ServerHttpTest() {
        server_.listen(QHostAddress::Any, 0);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            while (QTcpSocket* s = server_.nextPendingConnection())
                primeste(s);
        });
    }

    quint16 Port() const { return server_.serverPort(); }
    QUrl Adresa(const QString& cale, const QString& gazda = QStringLiteral("127.0.0.1")) const {
        return QUrl(QStringLiteral("http://%1:%2%3").arg(gazda).arg(Port()).arg(cale));
    }
    void Pune(const QString& cale, Raspuns r) { raspunsuri_[cale] = std::move(r); }
    void Pune(const QString& cale, const QByteArray& corp) { raspunsuri_[cale] = Raspuns{200, corp, {}, false}; }

    // The paths asked for, in order, whatever the host they were asked under.
    QStringList cereri;

private:
    void primeste(QTcpSocket* s) {
        auto tampon = std::make_shared<QByteArray>();
        QObject::connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
        QObject::connect(s, &QTcpSocket::readyRead, s, [this, s, tampon] {
            tampon->append(s->readAll());
            if (!tampon->contains("\r\n\r\n")) return;
            const QList<QByteArray> linie = tampon->left(tampon->indexOf("\r\n")).split(' ');
            tampon->clear();
            const QString cale = linie.size() > 1 ? QString::fromLatin1(linie[1]) : QString();
            cereri << cale;
            const auto it = raspunsuri_.constFind(cale);
            const Raspuns r = it == raspunsuri_.constEnd() ? Raspuns{404, "lipsa", {}, false} : *it;
            if (r.tace) return;
            QByteArray text = "HTTP/1.1 " + QByteArray::number(r.status) +
                              " X\r\nContent-Length: " + QByteArray::number(r.corp.size()) +
                              "\r\nConnection: close\r\n";
            if (!r.locatie.isEmpty()) text += "Location: " + r.locatie + "\r\n";
            s->write(text + "\r\n" + r.corp);
            s->disconnectFromHost();
        });
    }

    QTcpServer server_;
    QMap<QString, Raspuns> raspunsuri_;
};
