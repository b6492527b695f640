#pragma once
// Fixed-capacity tables whose index is always checked, in release builds too: a wrong index in a
// job's files must end in a message and never in somebody else's memory.

#include "platform/guasto.h"

#include <array>
#include <cstddef>
#include <string>

namespace telva {

// Gives the name back. Called while the program starts: a table whose name the compiler wrote down
// would carry all its zeros in the program's file.
const char *NomeTabella(const char *nome);

// Entries 0..N-1, all zero at start: tables stand in static storage. An index outside throws
// Guasto.
template <class T, int N>
class Tabella {
  public:
    explicit Tabella(const char *nome) : nome_(NomeTabella(nome)) {}

    T &operator[](int i) { return voci_[Verifica(i)]; }
    const T &operator[](int i) const { return voci_[Verifica(i)]; }
    T *Dati() { return voci_.data(); }
    void Azzera() { voci_.fill(T{}); }
    static constexpr int Capacita() { return N; }
    const char *Nome() const { return nome_; }

  private:
    std::size_t Verifica(int i) const {
        if (static_cast<unsigned>(i) >= static_cast<unsigned>(N)) GuastoIndice(nome_, i, N - 1);
        return static_cast<std::size_t>(i);
    }
    const char *nome_;
    std::array<T, static_cast<std::size_t>(N)> voci_;
};

// A table for whoever does not know its size: the same check of every index. Made of nothing it has
// no entries.
template <class T>
class VistaTabella {
  public:
    VistaTabella() = default;
    template <class V, int N>
    VistaTabella(Tabella<V, N> &t) : nome_(t.Nome()), voci_(t.Dati()), numero_(N) {}

    T &operator[](int i) const {
        if (static_cast<unsigned>(i) >= static_cast<unsigned>(numero_))
            GuastoIndice(nome_, i, numero_ - 1);
        return voci_[i];
    }
    bool Vuota() const { return numero_ == 0; }

  private:
    const char *nome_ = "";
    T *voci_ = nullptr;
    int numero_ = 0;
};

// Entries (0..N-1, 0..M-1), the second index the fast one; an index outside throws Guasto.
template <class T, int N, int M>
class Tabella2 {
  public:
    explicit Tabella2(const char *nome) : nome_(NomeTabella(nome)) {}

    T &operator()(int i, int j) { return voci_[Indice(i, j)]; }
    const T &operator()(int i, int j) const { return voci_[Indice(i, j)]; }
    void Azzera() { voci_.fill(T{}); }

  private:
    std::size_t Indice(int i, int j) const {
        if (static_cast<unsigned>(i) >= static_cast<unsigned>(N)) GuastoIndice(nome_, i, N - 1);
        if (static_cast<unsigned>(j) >= static_cast<unsigned>(M)) GuastoIndice(nome_, j, M - 1);
        return static_cast<std::size_t>(i) * static_cast<std::size_t>(M) +
               static_cast<std::size_t>(j);
    }
    const char *nome_;
    std::array<T, static_cast<std::size_t>(N) * static_cast<std::size_t>(M)> voci_;
};

} // namespace telva
