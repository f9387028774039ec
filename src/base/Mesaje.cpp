#include "base/Mesaje.h"

#include <cstdio>

namespace {
void scrie(std::FILE* f, const QString& text) {
    const QByteArray b = text.toUtf8();
    std::fwrite(b.constData(), 1, size_t(b.size()), f);
    std::fputc('\n', f);
    std::fflush(f);
}
} // namespace

void MesajeConsola::Informatie(const QString& text, const QString&) {
    scrie(stdout, text);
}
void MesajeConsola::Avertisment(const QString& text, const QString&) {
    scrie(stderr, text);
}
void MesajeConsola::Critic(const QString& text, const QString&) {
    scrie(stderr, text);
}

bool MesajeConsola::Intrebare(const QString& text, const QString&, bool implicitDa) {
    scrie(stderr, text + (implicitDa ? QStringLiteral(" [Da]") : QStringLiteral(" [Nu]")));
    return implicitDa;
}

QString MesajeConsola::Intrare(const QString& text, const QString&, const QString& implicit) {
    scrie(stderr, text);
    return implicit;
}
