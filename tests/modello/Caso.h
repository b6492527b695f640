#pragma once
// Chance: a small job, and the next thing that a user does in it. The same seed draws the same
// numbers in every build, so every draw is a statement of its own.

#include "modello/Modello.h"

#include <concepts>
#include <functional>
#include <random>

namespace telva::prove {

// One step, to be done in the program and by the rules: both have steps of the same names.
struct PassoCasuale {
    template <std::invocable<Utente &> Fai>
    PassoCasuale(const Fai &fai) : programma(fai), regole(fai) {} // from [=](auto &chi) {...}
    std::function<void(Utente &)> programma;
    std::function<void(Modello &)> regole;
};

class Caso {
  public:
    explicit Caso(unsigned seme) : numeri_(seme) {}
    LavoroProva Lavoro();
    Ingresso InIngresso();
    PassoCasuale Passo(const Modello &m);

  private:
    int Tira(std::size_t n) { return static_cast<int>(numeri_() % n); } // 0..n-1
    template <class T>
    T Una(std::initializer_list<T> scelte) {
        return scelte.begin()[Tira(scelte.size())];
    }
    std::string Testo(std::initializer_list<const char *> scelte) { return Una(scelte); }
    std::string Elenco();
    Punto PuntoScelto(const Modello &m);
    PassoCasuale Filtri();
    PassoCasuale Vista(const Modello &m, const PassoCasuale &trascina);
    PassoCasuale Casella(int quale);
    PassoCasuale Voce(int quale);
    PassoCasuale Risposta(const Modello &m);
    void Nodi(LavoroProva &l);
    void Elementi(LavoroProva &l);
    int Nome();
    int AstaIgnota();
    int Colore();
    double Coordinata();

    std::mt19937 numeri_;
    bool griglia_ = false; // points on whole steps
    int passo_ = 1, nomi_ = 1;
};

} // namespace telva::prove
