#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

// Storage for what a report of a million rows holds while it is built. Fresh memory is the dear part
// of such a build: the system zeroes and maps every page on first touch. Blocks of 1 MB and more are
// mapped on a 2 MB boundary with transparent huge pages asked for, so that a million rows touch a few
// hundred pages instead of a hundred thousand.
inline constexpr std::size_t PragMemorieMare = std::size_t(1) << 20;
// Zeroed; bad_alloc when the system has no more.
void* AlocaMare(std::size_t octeti);
void ElibereazaMare(void* p, std::size_t octeti);

// An allocator over the above whose new elements of a plain type are left as the system gives them:
// zeroed pages for `Zero` storage (for elements whose empty state is all zeroes), unwritten memory
// otherwise (for elements written before they are read). Elements regained after a vector shrank keep
// what they held.
template <typename T, bool Zero> struct AlocatorMare {
    using value_type = T;
    AlocatorMare() = default;
    template <typename U> AlocatorMare(const AlocatorMare<U, Zero>&) {}
    template <typename U> struct rebind {
        using other = AlocatorMare<U, Zero>;
    };
    T* allocate(std::size_t n) {
        if (n * sizeof(T) >= PragMemorieMare) return static_cast<T*>(AlocaMare(n * sizeof(T)));
        void* p = Zero ? std::calloc(n, sizeof(T)) : std::malloc(n * sizeof(T));
        if (!p) throw std::bad_alloc();
        return static_cast<T*>(p);
    }
    void deallocate(T* p, std::size_t n) {
        if (n * sizeof(T) >= PragMemorieMare)
            ElibereazaMare(p, n * sizeof(T));
        else
            std::free(p);
    }
    template <typename U> void construct(U* p) {
        if constexpr (!Zero && !std::is_trivially_default_constructible_v<U>) ::new (static_cast<void*>(p)) U();
    }
    template <typename U, typename... A> void construct(U* p, A&&... a) {
        ::new (static_cast<void*>(p)) U(std::forward<A>(a)...);
    }
    bool operator==(const AlocatorMare&) const = default;
};

// A vector of many elements, each written when added.
template <typename T> using VectorMare = std::vector<T, AlocatorMare<T, false>>;
