#include "Catene.h"

#include "model/struttura.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace telva::generatore {
namespace {

// What the bars of one chain have in common; the chains stand in this order.
struct Chiave {
    int Tipo, Primo, Secondo;
    std::string Nome; // of the chain
    auto operator<=>(const Chiave &) const = default;
};
using Gruppi = std::map<Chiave, Fila<int>>;

// Of grid lines along Y and along X.
std::string Numero(int filo) { return std::to_string(filo + 1); }
std::string Lettera(int filo) { return {static_cast<char>('A' + filo)}; }

// The chain that a bar is part of; one without name when there is none.
Chiave ChiaveDi(const Asta &asta) {
    const auto [piano, x, y] = asta.Dove;
    const int tipo = asta.Tipo.Numero;
    const std::string alPiano = " piano " + std::to_string(piano);
    switch (tipo) {
    case kPilastro.Numero: return {tipo, x, y, "Pilastro " + Numero(x) + Lettera(y)};
    case kTraveX.Numero: return {tipo, piano, y, "Trave filo " + Lettera(y) + alPiano};
    case kTraveY.Numero: return {tipo, piano, x, "Trave filo " + Numero(x) + alPiano};
    case kSmusso.Numero: return {tipo, piano, 0, "Trave d'angolo, estremità" + alPiano};
    case kArcareccio.Numero: return {tipo, y, 0, "Arcareccio " + Numero(y)};
    case kPuntone.Numero:
        if (x >= 0) return {tipo, x, 0, "Puntone filo " + Numero(x) + " (sommità)"};
        break;
    case kCordolo.Numero:
        if (x >= 0) return {tipo, x, y, "Cordolo filo " + Numero(x)};
        if (y >= 0) return {tipo, x, y, "Cordolo filo " + Lettera(y)};
        break;
    default: break;
    }
    return {};
}

Gruppi Raggruppa(const Fila<Asta> &aste) {
    Gruppi gruppi;
    for (int a = 0; a < aste.Quanti(); ++a)
        if (const Chiave chiave = ChiaveDi(aste[a]); !chiave.Nome.empty())
            gruppi[chiave].push_back(a);
    return gruppi;
}

// As many bars from there on as a continuous element holds.
Fila<int> Tratto(const Fila<int> &aste, int da) {
    const int a = std::min(aste.Quanti(), da + kAsteElCont);
    return {aste.begin() + da, aste.begin() + a};
}

Fila<ElCont> Naturali(const Gruppi &gruppi) {
    Fila<ElCont> catene;
    for (const auto &[chiave, aste] : gruppi)
        for (int da = 0; da < aste.Quanti(); da += kAsteElCont)
            catene.push_back({chiave.Nome + (da > 0 ? " (più avanti)" : ""), Tratto(aste, da)});
    return catene;
}

// Consecutive beams in X, taken as long as a continuous element may be.
Fila<ElCont> Graticci(const Gruppi &gruppi, int quanti) {
    Fila<int> travi;
    for (const auto &[chiave, aste] : gruppi)
        if (chiave.Tipo == kTraveX.Numero) travi.Aggiungi(aste);
    const int libere = travi.Quanti() - kAsteElCont;
    Fila<ElCont> catene;
    for (int g = 0; g < quanti; ++g)
        catene.push_back({"Graticcio n. " + Numero(g), Tratto(travi, libere * g / (quanti - 1))});
    return catene;
}

// Spans of the given number of bays along every beam.
Fila<ElCont> Campate(const Gruppi &gruppi, const Fila<Asta> &aste, int ampiezza) {
    Fila<ElCont> catene;
    for (const auto &[chiave, trave] : gruppi) {
        const bool lungoX = chiave.Tipo == kTraveX.Numero;
        if (!lungoX && chiave.Tipo != kTraveY.Numero) continue;
        const auto campataDi = [&aste, lungoX](int a) {
            return lungoX ? aste[a].Dove.FiloX : aste[a].Dove.FiloY;
        };
        const int ultima = campataDi(trave.back()); // beams run upwards along their line
        const auto filo = lungoX ? Numero : Lettera;
        for (int da = 0; da + ampiezza - 1 <= ultima; ++da) {
            ElCont campata{"Campata " + filo(da) + "-" + filo(da + ampiezza) +
                               chiave.Nome.substr(std::string("Trave").size()),
                           {}};
            std::ranges::copy_if(trave, std::back_inserter(campata.Aste), [&](int a) {
                return campataDi(a) >= da && campataDi(a) < da + ampiezza;
            });
            if (!campata.Aste.empty()) catene.push_back(campata);
        }
    }
    return catene;
}

} // namespace

Fila<ElCont> Catene(const Fila<Asta> &aste, int quante) {
    const Gruppi gruppi = Raggruppa(aste);
    Fila<ElCont> catene = Naturali(gruppi);
    catene.insert(catene.begin() + catene.Quanti() / 2, ElCont{"Trave eliminata (è vuota)", {}});
    if (quante == 0) return catene;
    catene.Aggiungi(Graticci(gruppi, quante / 40));
    for (int ampiezza = 1; catene.Quanti() < quante; ++ampiezza)
        catene.Aggiungi(Campate(gruppi, aste, ampiezza));
    catene.resize(static_cast<std::size_t>(quante));
    return catene;
}

} // namespace telva::generatore
