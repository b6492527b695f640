#include "Catene.h"

#include "Lavoro.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>

namespace telva::generatore {
namespace {

using Chiave = std::array<int, 3>; // kind, storey or first line, line
using Gruppi = std::map<Chiave, Fila<int>>;

std::string Numero(int filo) { return std::to_string(filo + 1); }

// A..Z, then AA, AB, ...
std::string Lettera(int filo) {
    const std::string ultima(1, static_cast<char>('A' + filo % 26));
    return filo < 26 ? ultima : Lettera(filo / 26 - 1) + ultima;
}

// The chain that a bar is part of; none when its kind is none.
std::optional<Chiave> ChiaveDi(const AstaGrezza &asta) {
    const int tipo = static_cast<int>(asta.Tipo);
    const auto [piano, x, y] = asta.Dove;
    switch (asta.Tipo) {
    case TipoAsta::Pilastro: return Chiave{tipo, x, y};
    case TipoAsta::TraveX: return Chiave{tipo, piano, y};
    case TipoAsta::TraveY: return Chiave{tipo, piano, x};
    case TipoAsta::Smusso: return Chiave{tipo, piano, 0};
    case TipoAsta::Cordolo:
        return x >= 0 || y >= 0 ? std::optional(Chiave{tipo, x, y}) : std::nullopt;
    case TipoAsta::Puntone: return x >= 0 ? std::optional(Chiave{tipo, x, 0}) : std::nullopt;
    case TipoAsta::Arcareccio: return Chiave{tipo, y, 0};
    default: return std::nullopt;
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

Gruppi Raggruppa(const Fila<AstaGrezza> &aste) {
    Gruppi gruppi;
    for (int a = 0; a < aste.Quanti(); ++a)
        if (const auto chiave = ChiaveDi(aste[a])) gruppi[*chiave].push_back(a);
    return gruppi;
}

Fila<int> Tratto(const Fila<int> &aste, int da) {
    const int a = std::min(aste.Quanti(), da + MaxAsteElCont);
    return {aste.begin() + da, aste.begin() + a};
}

Fila<Catena> Naturali(const Gruppi &gruppi) {
    Fila<Catena> catene;
    for (const auto &[chiave, aste] : gruppi)
        for (int da = 0; da < aste.Quanti(); da += MaxAsteElCont)
            catene.push_back({NomeDi(chiave) + (da > 0 ? " (più avanti)" : ""), Tratto(aste, da)});
    return catene;
}

// Consecutive beams in X, taken as long as a continuous element may be.
Fila<Catena> Graticci(const Gruppi &gruppi, int quanti) {
    Fila<int> travi;
    for (const auto &[chiave, aste] : gruppi)
        if (chiave[0] == static_cast<int>(TipoAsta::TraveX)) travi.Aggiungi(aste);
    const int libere = std::max(0, travi.Quanti() - MaxAsteElCont);
    Fila<Catena> catene;
    for (int g = 0; g < quanti; ++g)
        catene.push_back(
            {"Graticcio n. " + Numero(g), Tratto(travi, libere * g / std::max(1, quanti - 1))});
    return catene;
}

// Spans of the given number of bays along every beam, until enough.
void AggiungiCampate(Fila<Catena> &catene, const Gruppi &gruppi, const Fila<AstaGrezza> &aste,
                     int ampiezza, int quante) {
    for (const auto &[chiave, trave] : gruppi) {
        const bool lungoX = chiave[0] == static_cast<int>(TipoAsta::TraveX);
        if (!lungoX && chiave[0] != static_cast<int>(TipoAsta::TraveY)) continue;
        const auto campataDi = [&, lungoX](int a) {
            return lungoX ? aste[a].Dove.FiloX : aste[a].Dove.FiloY;
        };
        const int ultima = campataDi(trave.back()); // beams run upwards along their line
        std::map<int, Fila<int>> campate;
        for (const int a : trave)
            for (int c = campataDi(a) - ampiezza + 1; c <= campataDi(a); ++c)
                if (c >= 0 && c + ampiezza - 1 <= ultima) campate[c].push_back(a);
        const auto filo = lungoX ? Numero : Lettera;
        for (const auto &[inizio, pezzo] : campate) {
            if (catene.Quanti() >= quante) return;
            if (pezzo.Quanti() <= MaxAsteElCont)
                catene.push_back({"Campata " + filo(inizio) + "-" + filo(inizio + ampiezza) +
                                      NomeDi(chiave).substr(std::string("Trave").size()),
                                  pezzo});
        }
    }
}

} // namespace

Fila<Catena> Catene(const Fila<AstaGrezza> &aste, int quante) {
    const Gruppi gruppi = Raggruppa(aste);
    Fila<Catena> catene = Naturali(gruppi);
    catene.insert(catene.begin() + catene.Quanti() / 2, Catena{"Trave eliminata (è vuota)", {}});
    if (quante == 0) return catene;
    const Fila<Catena> lunghi = Graticci(gruppi, std::max(1, quante / 40));
    if (catene.Quanti() + lunghi.Quanti() > quante)
        catene.resize(static_cast<std::size_t>(quante - lunghi.Quanti()));
    catene.Aggiungi(lunghi);
    for (int ampiezza = 1; catene.Quanti() < quante && ampiezza < 40; ++ampiezza)
        AggiungiCampate(catene, gruppi, aste, ampiezza, quante);
    return catene;
}

} // namespace telva::generatore
