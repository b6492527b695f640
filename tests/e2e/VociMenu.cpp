#include "VociMenu.h"

#include "Base.h"

#include <algorithm>

namespace telva::prove {

namespace {

struct Voce {
    std::string didascalia;
    std::vector<Voce> voci{};
};

const std::vector<Voce> kMenu{
    {"&File", {{"&Aggiorna ed Esci"}, {"&Esci"}}},
    {"&Visualizza", {{"&Ottimizza"}, {"&Zoom"}, {"&Sposta"}, {"&Ridisegna"}}},
    {"&Operazioni",
     {{"&Aggiungi"}, {"&Rimuovi"}, {"Ri&muovi tutto"}, {"In&verti selezione"}, {"&Interrompi"}}},
    {"&Selezioni",
     {{"&Finestra"},
      {"&Colore",
       {{"Bianco"},
        {"Blu"},
        {"Rosso"},
        {"Verde"},
        {"Giallo"},
        {"Verde scuro"},
        {"Magenta"},
        {"Azzurro"},
        {"Arancione"},
        {"Tutti"}}},
      {"Tipo &punto", {{"1"}, {"2"}, {"3"}, {"4"}, {"Tutti"}}},
      {"Tipo &linea", {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"Tutti"}}},
      {"Tipo &tratteggio", {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}, {"7"}, {"8"}, {"Tutti"}}},
      {"&Materiale"},
      {"Sezione"},
      {"Spessore"},
      {"Orientamento"},
      {"Svincolo"},
      {"Vincolo"},
      {"N&ome elemento"},
      {"T&utto"}}},
    {"Op&zioni",
     {{"&Visualizza Coordinate"},
      {"Visualizza &Assi"},
      {"&Barra laterale"},
      {"Barra delle &icone"},
      {"&Trappola..."},
      {"O&pzioni..."}}}};

std::string SenzaSegno(std::string didascalia) {
    std::erase(didascalia, '&');
    return didascalia;
}

std::string Lettera(const Voce &voce) {
    const auto segno = voce.didascalia.find('&');
    return segno == std::string::npos ? "" : voce.didascalia.substr(segno + 1, 1);
}

// A menu opens with its first item chosen.
std::string Raggiungi(const std::vector<Voce> &voci, const Voce &voce) {
    if (const auto lettera = Lettera(voce); !lettera.empty()) return lettera;
    std::string tasti;
    for (const Voce *prima = voci.data(); prima != &voce; ++prima) tasti += "Giu ";
    return tasti + "Invio";
}

const Voce &Cerca(const std::vector<Voce> &voci, const std::string &nome) {
    const auto trovata = std::find_if(
        voci.begin(), voci.end(), [&](const Voce &v) { return SenzaSegno(v.didascalia) == nome; });
    if (trovata == voci.end()) Fallisci("no menu item '" + nome + "' in the table of the tests");
    return *trovata;
}

} // namespace

TastiMenu TastiDi(const std::string &menu, const std::string &voce, const std::string &sotto) {
    const Voce &capo = Cerca(kMenu, menu), &scelta = Cerca(capo.voci, voce);
    TastiMenu tasti{"Alt+" + Lettera(capo), Raggiungi(capo.voci, scelta)};
    if (!sotto.empty()) tasti.voce += " " + Raggiungi(scelta.voci, Cerca(scelta.voci, sotto));
    return tasti;
}

} // namespace telva::prove
