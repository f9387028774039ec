#include "base/BlocareFisier.h"

#include <QFile>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

BlocareFisier::BlocareFisier(QString cale) : cale_(std::move(cale)) {}

BlocareFisier::~BlocareFisier() {
    Elibereaza();
}

#ifdef Q_OS_WIN

bool BlocareFisier::Obtine() {
    if (detinuta_) return true;
    // No sharing: while this handle is open every other open of the file is refused, on the
    // local disk and on a network share alike.
    HANDLE h = CreateFileW(reinterpret_cast<LPCWSTR>(cale_.utf16()), GENERIC_READ, 0, nullptr, OPEN_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) return false;
    handle_ = h;
    detinuta_ = true;
    return true;
}

void BlocareFisier::Elibereaza() {
    if (handle_) CloseHandle(static_cast<HANDLE>(handle_));
    handle_ = nullptr;
    detinuta_ = false;
}

#else

bool BlocareFisier::Obtine() {
    if (detinuta_) return true;
    const QByteArray nume = QFile::encodeName(cale_);
    int fd = -1;
    do {
        fd = ::open(nume.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) return false;
#ifdef F_OFD_SETLK
    // A lock of the open file, not of the process: a second open in this same process
    // conflicts too, and network file systems pass it to the server.
    struct flock f {};
    f.l_type = F_WRLCK;
    f.l_whence = SEEK_SET;
    const bool ok = ::fcntl(fd, F_OFD_SETLK, &f) == 0;
#else
    const bool ok = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
#endif
    if (!ok) {
        ::close(fd);
        return false;
    }
    fd_ = fd;
    detinuta_ = true;
    return true;
}

void BlocareFisier::Elibereaza() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    detinuta_ = false;
}

#endif
