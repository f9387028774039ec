#include "base/MemorieMare.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace {
constexpr std::size_t Pagina2M = std::size_t(1) << 21;
std::size_t Rotunjit(std::size_t octeti) {
    return (octeti + Pagina2M - 1) & ~(Pagina2M - 1);
}
} // namespace

void* AlocaMare(std::size_t octeti) {
#if defined(__linux__)
    // Mapped with room to start on a 2 MB boundary, the rest given back.
    const std::size_t marime = Rotunjit(octeti);
    void* m = mmap(nullptr, marime + Pagina2M, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (m == MAP_FAILED) throw std::bad_alloc();
    auto* inceput = static_cast<char*>(m);
    auto* aliniat =
        reinterpret_cast<char*>((reinterpret_cast<std::uintptr_t>(inceput) + Pagina2M - 1) & ~(Pagina2M - 1));
    if (aliniat > inceput) munmap(inceput, std::size_t(aliniat - inceput));
    const std::size_t dupa = Pagina2M - std::size_t(aliniat - inceput);
    if (dupa > 0) munmap(aliniat + marime, dupa);
    madvise(aliniat, marime, MADV_HUGEPAGE);
    return aliniat;
#else
    void* p = std::calloc(1, octeti);
    if (!p) throw std::bad_alloc();
    return p;
#endif
}

void ElibereazaMare(void* p, std::size_t octeti) {
#if defined(__linux__)
    munmap(p, Rotunjit(octeti));
#else
    (void)octeti;
    std::free(p);
#endif
}
