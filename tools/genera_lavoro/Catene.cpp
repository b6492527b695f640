#include "Catene.h"

#include "Lavoro.h"

#include <algorithm>
#include <array>
#include <map>

namespace telva::generatore {

namespace {

using Chiave = std::array<int, 3>; // kind, storey or first line, line
using Gruppi = std::map<Chiave, std::vector<int>>;

std::string Numero(int filo) { return std::to_string(filo + 1); }

// A..Z, then AA, AB, ...
std::string Lettera(int filo) {
    const std::string ultima(1, static_cast<char>('A' + filo % 26));
    return filo < 26 ? ultima : Lettera(filo / 26 - 1) + ultima;
}

bool ChiaveDi(const AstaGrezza &asta, Chiave &chiave) {
    const int tipo = static_cast<int>(asta.Tipo);
    switch (asta.Tipo) {
    case TipoAsta::Pilastro: chiave = {tipo, asta.Dove.FiloX, asta.Dove.FiloY}; return true;
    case TipoAsta::TraveX: chiave = {tipo, asta.Dove.Piano, asta.Dove.FiloY}; return true;
    case TipoAsta::TraveY: chiave = {tipo, asta.Dove.Piano, asta.Dove.FiloX}; return true;
    case TipoAsta::Smusso: chiave = {tipo, asta.Dove.Piano, 0}; return true;
    case TipoAsta::Cordolo:
        chiave = {tipo, asta.Dove.FiloX, asta.Dove.FiloY};
        return chiave[1] >= 0 || chiave[2] >= 0;
    case TipoAsta::Puntone: chiave = {tipo, asta.Dove.FiloX, 0}; return chiave[1] >= 0;
    case TipoAsta::Arcareccio: chiave = {tipo, asta.Dove.FiloY, 0}; return true;
    default: return false;
    }
}

std::string NomeDi(const Chiave &chiave) {
    const std::string piano = " piano " + std::to_string(chiave[1]);
    switch (static_cast<TipoAsta>(chiave[0])) {
    case TipoAsta::Pilastro: return "Pilastro " + Numero(chiave[1]) + Lettera(chiave[2]);
    case TipoAsta::TraveX: return "Trave filo " + Lettera(chiave[2]) + piano;
    case TipoAsta::TraveY: return "Trave filo " + Numero(chiave[2]) + piano;
    case TipoAsta::Smusso: return "Trave d'angolo, estremità" + piano;
    case TipoAsta::Cordolo:
        return "Cordolo filo " + (chiave[1] >= 0 ? Numero(chiave[1]) : Lettera(chiave[2]));
    case TipoAsta::Puntone: return "Puntone filo " + Numero(chiave[1]) + " (sommità)";
    default: return "Arcareccio " + Numero(chiave[1]);
    }
}

Gruppi Raggruppa(const std::vector<AstaGrezza> &aste) {
    Gruppi gruppi;
    Chiave chiave{};
    for (std::size_t a = 0; a < aste.size(); ++a)
        if (ChiaveDi(aste[a], chiave)) gruppi[chiave].push_back(static_cast<int>(a));
    return gruppi;
}

std::vector<Catena> Naturali(const Gruppi &gruppi) {
    std::vector<Catena> catene;
    for (const auto &[chiave, aste] : gruppi)
        for (std::size_t da = 0; da < aste.size(); da += MaxAsteElCont) {
            const std::size_t a = std::min<std::size_t>(aste.size(), da + MaxAsteElCont);
            const auto inizio = aste.begin();
            catene.push_back({NomeDi(chiave) + (da > 0 ? " (più avanti)" : ""),
                              {inizio + static_cast<std::ptrdiff_t>(da),
                               inizio + static_cast<std::ptrdiff_t>(a)}});
        }
    return catene;
}

// Consecutive beams in X, taken as long as a continuous element may be.
std::vector<Catena> Graticci(const Gruppi &gruppi, int quanti) {
    std::vector<int> travi;
    for (const auto &[chiave, aste] : gruppi)
        if (chiave[0] == static_cast<int>(TipoAsta::TraveX))
            travi.insert(travi.end(), aste.begin(), aste.end());
    const std::size_t lunghezza = std::min<std::size_t>(MaxAsteElCont, travi.size());
    std::vector<Catena> catene;
    for (int g = 0; g < quanti; ++g) {
        const std::size_t libere = travi.size() - lunghezza;
        const std::size_t da = libere * static_cast<std::size_t>(g) /
                               static_cast<std::size_t>(std::max(1, quanti - 1));
        const auto inizio = travi.begin() + static_cast<std::ptrdiff_t>(da);
        catene.push_back({"Graticcio n. " + Numero(g),
                          {inizio, inizio + static_cast<std::ptrdiff_t>(lunghezza)}});
    }
    return catene;
}

// Spans of the given number of bays along every beam, until enough.
void AggiungiCampate(std::vector<Catena> &catene, const Gruppi &gruppi,
                     const std::vector<AstaGrezza> &aste, int ampiezza, std::size_t quante) {
    for (const auto &[chiave, trave] : gruppi) {
        const bool lungoX = chiave[0] == static_cast<int>(TipoAsta::TraveX);
        if (!lungoX && chiave[0] != static_cast<int>(TipoAsta::TraveY)) continue;
        const auto campataDi = [&aste, lungoX](int a) {
            const Luogo &dove = aste[static_cast<std::size_t>(a)].Dove;
            return lungoX ? dove.FiloX : dove.FiloY;
        };
        const int ultima = campataDi(trave.back()); // beams run upwards along their line
        std::map<int, std::vector<int>> campate;
        for (const int a : trave) {
            const int campata = campataDi(a);
            for (int c = campata - ampiezza + 1; c <= campata; ++c)
                if (c >= 0 && c + ampiezza - 1 <= ultima) campate[c].push_back(a);
        }
        for (const auto &[inizio, pezzo] : campate) {
            if (catene.size() >= quante) return;
            const int fine = inizio + ampiezza;
            const std::string tratto = lungoX ? Numero(inizio) + "-" + Numero(fine)
                                              : Lettera(inizio) + "-" + Lettera(fine);
            const std::string resto = NomeDi(chiave).substr(std::string("Trave").size());
            if (pezzo.size() <= MaxAsteElCont)
                catene.push_back({"Campata " + tratto + resto, pezzo});
        }
    }
}

} // namespace

std::vector<Catena> Catene(const std::vector<AstaGrezza> &aste, int quante) {
    const Gruppi gruppi = Raggruppa(aste);
    std::vector<Catena> catene = Naturali(gruppi);
    catene.insert(catene.begin() + static_cast<std::ptrdiff_t>(catene.size() / 2),
                  Catena{"Trave eliminata (è vuota)", {}});
    if (quante == 0) return catene;
    const std::size_t voluti = static_cast<std::size_t>(quante);
    const std::vector<Catena> lunghi = Graticci(gruppi, std::max(1, quante / 40));
    if (catene.size() + lunghi.size() > voluti) catene.resize(voluti - lunghi.size());
    catene.insert(catene.end(), lunghi.begin(), lunghi.end());
    for (int ampiezza = 1; catene.size() < voluti && ampiezza < 40; ++ampiezza)
        AggiungiCampate(catene, gruppi, aste, ampiezza, voluti);
    return catene;
}

} // namespace telva::generatore
