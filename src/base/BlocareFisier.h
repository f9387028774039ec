#pragma once

#include <QString>

// An exclusive lock on a file that several computers reach through a shared folder. Taking it
// never waits: while one holder has it, every other attempt (another process, another
// computer, or another object of this same process) fails at once. The lock goes with the
// object, and the operating system drops it when the process ends.
class BlocareFisier {
public:
    explicit BlocareFisier(QString cale);
    ~BlocareFisier();
    BlocareFisier(const BlocareFisier&) = delete;
    BlocareFisier& operator=(const BlocareFisier&) = delete;

    // Opens the file (creating it when it is missing) and locks it. False, at once, when the
    // lock is held elsewhere or the file can't be opened or created.
    bool Obtine();
    void Elibereaza();
    bool Detinuta() const { return detinuta_; }
    const QString& Cale() const { return cale_; }

private:
    QString cale_;
    bool detinuta_ = false;
#ifdef Q_OS_WIN
    void* handle_ = nullptr;
#else
    int fd_ = -1;
#endif
};
