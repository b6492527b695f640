// Command line of the job generator.
#include "Generatore.h"
#include "ScriviLavoro.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string_view>

namespace {

namespace gen = telva::generatore;

constexpr const char *kUso =
    "Uso: genera_lavoro --cartella <cartella dell'installazione> [opzioni]\n"
    "  --lavoro <codice>     sei caratteri (predefinito dimo01)\n"
    "  --taglia <misura>     campione | decimo | terzo | piena\n"
    "  --radice <percorso>   la cartella come la vede Telva (predefinito c:\\telva)\n";

constexpr std::array<std::string_view, 4> kTaglie{"campione", "decimo", "terzo", "piena"};

void Esegui(const std::vector<std::string> &argomenti) {
    std::map<std::string, std::string> opzioni{{"--cartella", ""},
                                               {"--lavoro", "dimo01"},
                                               {"--taglia", "campione"},
                                               {"--radice", "c:\\telva"}};
    for (std::size_t a = 0; a < argomenti.size(); a += 2) {
        if (a + 1 == argomenti.size() || !opzioni.contains(argomenti[a]))
            throw std::invalid_argument("argomento sconosciuto o senza valore: " + argomenti[a]);
        opzioni[argomenti[a]] = argomenti[a + 1];
    }
    if (opzioni["--cartella"].empty()) throw std::invalid_argument("manca --cartella");
    const auto taglia = std::ranges::find(kTaglie, opzioni["--taglia"]);
    if (taglia == kTaglie.end())
        throw std::invalid_argument("valore sconosciuto: " + opzioni["--taglia"]);
    gen::ScriviInstallazione(opzioni["--cartella"], opzioni["--lavoro"],
                             gen::Genera(static_cast<gen::Taglia>(taglia - kTaglie.begin())),
                             opzioni["--radice"]);
}

} // namespace

int main(int argc, char **argv) {
    try {
        Esegui({argv + 1, argv + argc});
        return 0;
    } catch (const std::invalid_argument &errore) {
        std::cerr << errore.what() << "\n\n" << kUso;
        return 2;
    } catch (const std::exception &errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
}
