// Command line of the job generator.
#include "Generatore.h"
#include "ScriviLavoro.h"

#include <charconv>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>

namespace {

namespace gen = telva::generatore;

constexpr const char *Uso =
    "Uso: genera_lavoro --cartella <cartella dell'installazione> [opzioni]\n"
    "  --lavoro <codice>     sei caratteri (predefinito dimo01)\n"
    "  --seme <numero>       lo stesso seme dà lo stesso lavoro (predefinito 1)\n"
    "  --taglia <misura>     campione | decimo | terzo | piena | numero di elementi\n"
    "                        (nodi + aste + gusci, da 2500 a 56003)\n"
    "  --nomi <ordine>       misti | inversi\n"
    "  --tipo <0..4>         elementi chiesti: nodi, aste, gusci, continui, pareti\n"
    "  --selezione <elenco>  selezione in ingresso, per esempio 1-5,7\n"
    "  --titolo <testo>      titolo in UTF-8\n"
    "  --radice <percorso>   la cartella come la vede Telva (predefinito c:\\telva)\n";

using Opzioni = std::map<std::string, std::string>;

Opzioni Leggi(const std::vector<std::string> &argomenti) {
    Opzioni opzioni;
    for (const char *nome : {"--cartella", "--lavoro", "--seme", "--taglia", "--nomi", "--tipo",
                             "--selezione", "--titolo", "--radice"})
        for (std::size_t a = 0; a + 1 < argomenti.size(); a += 2)
            if (argomenti[a] == nome) opzioni[nome] = argomenti[a + 1];
    if (argomenti.size() % 2 != 0 || opzioni.size() != argomenti.size() / 2)
        throw std::invalid_argument("argomento sconosciuto, ripetuto o senza valore");
    if (!opzioni.contains("--cartella")) throw std::invalid_argument("manca --cartella");
    return opzioni;
}

std::string Valore(const Opzioni &opzioni, const std::string &nome, const std::string &altrimenti) {
    const auto trovata = opzioni.find(nome);
    return trovata == opzioni.end() ? altrimenti : trovata->second;
}

template <class T>
T Numero(const std::string &testo, const std::string &nome) {
    T valore{};
    const char *fine = testo.data() + testo.size();
    const auto [dove, errore] = std::from_chars(testo.data(), fine, valore);
    if (errore != std::errc{} || dove != fine)
        throw std::invalid_argument(nome + ": non è un numero valido: " + testo);
    return valore;
}

void LeggiTaglia(const std::string &testo, gen::Parametri &parametri) {
    const std::map<std::string, gen::Taglia> nomi{{"campione", gen::Taglia::Campione},
                                                  {"decimo", gen::Taglia::Decimo},
                                                  {"terzo", gen::Taglia::Terzo},
                                                  {"piena", gen::Taglia::Piena}};
    const auto trovata = nomi.find(testo);
    parametri.Misura = trovata == nomi.end() ? gen::Taglia::Numero : trovata->second;
    if (trovata == nomi.end()) parametri.NumElementi = Numero<int>(testo, "--taglia");
}

gen::Parametri ParametriDi(const Opzioni &opzioni) {
    gen::Parametri parametri;
    parametri.Seme = Numero<std::uint64_t>(Valore(opzioni, "--seme", "1"), "--seme");
    LeggiTaglia(Valore(opzioni, "--taglia", "campione"), parametri);
    const std::string nomi = Valore(opzioni, "--nomi", "misti");
    if (nomi != "misti" && nomi != "inversi")
        throw std::invalid_argument("--nomi: misti oppure inversi");
    if (nomi == "inversi") parametri.Ordine = gen::Nomi::Inversi;
    parametri.Tipo = Numero<int>(Valore(opzioni, "--tipo", "1"), "--tipo");
    parametri.Selezione = Valore(opzioni, "--selezione", "");
    parametri.Titolo = Valore(opzioni, "--titolo", "");
    return parametri;
}

void Esegui(const Opzioni &opzioni) {
    const gen::Lavoro lavoro = gen::Genera(ParametriDi(opzioni));
    std::optional<std::string> radice;
    if (opzioni.contains("--radice")) radice = opzioni.at("--radice");
    const auto cartella = gen::ScriviInstallazione(
        opzioni.at("--cartella"), Valore(opzioni, "--lavoro", gen::CodicePredefinito), lavoro,
        radice);
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
        std::cerr << errore.what() << "\n\n" << Uso;
        return 2;
    } catch (const std::exception &errore) {
        std::cerr << errore.what() << '\n';
        return 1;
    }
}
