// Command line of the job generator.
#include "Generatore.h"
#include "ScriviLavoro.h"

#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>

namespace {

namespace gen = telva::generatore;

constexpr const char *kUso =
    "Uso: genera_lavoro --cartella <cartella dell'installazione> [opzioni]\n"
    "  --lavoro <codice>     sei caratteri (predefinito dimo01)\n"
    "  --taglia <misura>     campione | decimo | terzo | piena\n"
    "  --radice <percorso>   la cartella come la vede Telva (predefinito c:\\telva)\n";

using Opzioni = std::map<std::string, std::string>;

const std::map<std::string, gen::Taglia> kTaglie{{"campione", gen::Taglia::Campione},
                                                 {"decimo", gen::Taglia::Decimo},
                                                 {"terzo", gen::Taglia::Terzo},
                                                 {"piena", gen::Taglia::Piena}};

Opzioni Leggi(const std::vector<std::string> &argomenti) {
    Opzioni opzioni{
        {"--lavoro", "dimo01"}, {"--taglia", "campione"}, {"--radice", ""}, {"--cartella", ""}};
    for (std::size_t a = 0; a < argomenti.size(); a += 2) {
        if (a + 1 == argomenti.size() || !opzioni.contains(argomenti[a]))
            throw std::invalid_argument("argomento sconosciuto o senza valore: " + argomenti[a]);
        opzioni[argomenti[a]] = argomenti[a + 1];
    }
    if (opzioni["--cartella"].empty()) throw std::invalid_argument("manca --cartella");
    if (!kTaglie.contains(opzioni["--taglia"]))
        throw std::invalid_argument("valore sconosciuto: " + opzioni["--taglia"]);
    return opzioni;
}

void Esegui(const Opzioni &opzioni) {
    const gen::Lavoro lavoro = gen::Genera({.Misura = kTaglie.at(opzioni.at("--taglia"))});
    std::optional<std::string> radice;
    if (!opzioni.at("--radice").empty()) radice = opzioni.at("--radice");
    const auto cartella =
        gen::ScriviInstallazione(opzioni.at("--cartella"), opzioni.at("--lavoro"), lavoro, radice);
    std::cout << cartella.string() << ": " << lavoro.Punti.size() << " punti, "
              << lavoro.Nodi.size() << " nodi, " << lavoro.Aste.size() << " aste, "
              << lavoro.Gusci.size() << " gusci, " << lavoro.ElementiContinui.size()
              << " elementi continui\n";
}

} // namespace

int main(int argc, char **argv) {
    try {
        Esegui(Leggi({argv + 1, argv + argc}));
        return 0;
    } catch (const std::invalid_argument &errore) {
        std::cerr << errore.what() << "\n\n" << kUso;
        return 2;
    } catch (const std::exception &errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
}
