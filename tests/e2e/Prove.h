#pragma once
// Scenarios and checks of the real-window tests. A check that fails is counted and the scenario
// goes on; DIVENTA waits for a value and, like every step of the driver, ends the scenario on
// failure.
#include "Pilota.h"

#include <sstream>

namespace telva::prove {

// What the command line gave: the program, an installation made by the job generator (with a job
// dimo01), and the folder for screenshots (empty: none).
struct Ambiente {
    std::wstring telva;
    std::filesystem::path dati, foto;
    // The jobs folder named by the installation's settings, lower-case, with its last backslash.
    std::filesystem::path Lavori() const;
    // The argument string that opens the installation, with more behind it.
    std::wstring Argomento(const std::string &altro = {}) const;
};

// Puts a scenario on the list; they run in alphabetical order of their names.
struct Registra {
    Registra(const std::string &nome, void (*corpo)(const Ambiente &));
};

// Counts a check and reports it when it failed.
void Verifica(bool esito, const std::string &testo, const char *file, int riga);

// As text, between quotes.
template <class T>
std::string Mostra(const T &valore) {
    std::ostringstream s;
    s << "'" << std::boolalpha << valore << "'";
    return s.str();
}

template <class A, class B>
void Uguale(const A &a, const B &b, const char *testo, const char *file, int riga) {
    Verifica(a == b, std::string(testo) + ": expected " + Mostra(b) + ", saw " + Mostra(a), file,
             riga);
}

template <class A, class B>
void AlPiu(const A &a, const B &b, const char *testo, const char *file, int riga) {
    Verifica(a <= b, std::string(testo) + ": at most " + Mostra(b) + ", saw " + Mostra(a), file,
             riga);
}

template <class F, class B>
void Diventa(const Programma &p, F lettura, const B &atteso, const char *testo) {
    auto visto = lettura();
    p.Aspetta(
        std::string(testo) + " to become " + Mostra(atteso),
        [&] { return (visto = lettura()) == atteso; }, [&] { return Mostra(visto); });
    Verifica(true, testo, "", 0);
}

} // namespace telva::prove

#define SCENARIO(nome)                                                                             \
    static void nome(const telva::prove::Ambiente &amb);                                           \
    static const telva::prove::Registra registra_##nome{#nome, nome};                              \
    static void nome([[maybe_unused]] const telva::prove::Ambiente &amb)
#define VERIFICA(condizione) telva::prove::Verifica((condizione), #condizione, __FILE__, __LINE__)
#define UGUALE(a, b) telva::prove::Uguale((a), (b), #a, __FILE__, __LINE__)
#define AL_PIU(a, b) telva::prove::AlPiu((a), (b), #a, __FILE__, __LINE__)
#define DIVENTA(programma, espressione, atteso)                                                    \
    telva::prove::Diventa((programma), [&] { return (espressione); }, (atteso), #espressione)
