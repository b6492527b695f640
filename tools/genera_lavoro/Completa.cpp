#include "Completa.h"

#include <utility>

namespace telva::generatore {
namespace {

constexpr int LunghezzaPalo = 150 * 100; // one pile segment
constexpr int MaxConci = 28;             // keeps the pile tips above -5000 cm

// So many of them at equal distances.
template <class T>
Fila<T> Scelti(const Fila<T> &tutti, int quanti) {
    Fila<T> scelti;
    for (int s = 0; s < quanti; ++s) scelti.push_back(tutti[s * tutti.Quanti() / quanti]);
    return scelti;
}

template <class F>
Fila<int> GusciTali(const Cantiere &c, F tale) {
    Fila<int> indici;
    for (int g = 0; g < c.Gusci.Quanti(); ++g)
        if (tale(c.Gusci[g])) indici.push_back(g);
    return indici;
}

Fila<int> CampiQuadri(const Cantiere &c) {
    return GusciTali(
        c, [](const GuscioGrezzo &g) { return g.Tipo == TipoGuscio::Solaio && g.Nodi[3] >= 0; });
}

bool AggiungiPali(Cantiere &c, int quanti) {
    Fila<Posizione> teste;
    for (const Posizione &p : c.Nodi)
        if (p.Z == 0) teste.push_back(p);
    for (int concio = 0; concio < MaxConci; ++concio)
        for (const auto &[x, y, suolo] : teste) {
            if (quanti-- <= 0) return true;
            const int testa = -LunghezzaPalo * concio;
            c.Asta(TipoAsta::Palo, {x, y, testa}, {x, y, testa - LunghezzaPalo}, {suolo});
        }
    return quanti <= 0;
}

bool ApriCavedi(Cantiere &c, int quanti) {
    const Fila<int> possibili = GusciTali(c, [](const GuscioGrezzo &g) { return g.Cavedio; });
    if (quanti > possibili.Quanti()) return false;
    const Fila<int> via = Scelti(possibili, quanti);
    Fila<GuscioGrezzo> restano;
    for (int g = 0, v = 0; g < c.Gusci.Quanti(); ++g)
        if (v < via.Quanti() && via[v] == g)
            ++v;
        else
            restano.push_back(c.Gusci[g]);
    c.Gusci = std::move(restano);
    return true;
}

// Two triangles in place of a rectangle: one shell more and no new node.
bool DividiCampi(Cantiere &c, int quanti) {
    const Fila<int> campi = CampiQuadri(c);
    if (quanti > campi.Quanti()) return false;
    for (const int g : Scelti(campi, quanti)) {
        GuscioGrezzo meta = c.Gusci[g];
        meta.Nodi = {meta.Nodi[0], meta.Nodi[2], meta.Nodi[3], -1};
        meta.Cavedio = false;
        c.Gusci[g].Nodi[3] = -1;
        c.Gusci.push_back(meta);
    }
    return true;
}

bool AggiungiAste(Edificio &e, int quante) {
    if (quante > e.Aggiungibili.Quanti()) return false;
    for (int a = 0; a < quante; ++a) {
        const AstaCandidata &asta = e.Aggiungibili[a];
        e.Elementi.Asta(asta.Tipo, asta.I, asta.J, asta.Dove);
    }
    return true;
}

} // namespace

bool Completa(Edificio &edificio, const Obiettivi &obiettivi, const FuoriVista &fuori) {
    Cantiere &c = edificio.Elementi;
    const int nodi = obiettivi.Nodi - fuori.Nodi - c.Nodi.Quanti();
    if (nodi < 0 || !AggiungiPali(c, nodi)) return false;
    const int aste = obiettivi.Aste - fuori.Aste - c.Aste.Quanti();
    if (aste < 0 || !AggiungiAste(edificio, aste)) return false;
    const int gusci = obiettivi.Gusci - fuori.Gusci - c.Gusci.Quanti();
    return gusci < 0 ? ApriCavedi(c, -gusci) : DividiCampi(c, gusci);
}

void AggiungiFuoriVista(Edificio &edificio, const FuoriVista &fuori) {
    Cantiere &c = edificio.Elementi;
    Fila<AstaGrezza> aste;
    for (const int g : Scelti(CampiQuadri(c), fuori.Aste)) {
        const auto &[nodi, tipo, dove, cavedio] = c.Gusci[g];
        if (aste.size() % 2 == 0)
            aste.push_back({nodi[1], nodi[3], TipoAsta::Eliminata, {dove.Piano}});
        else
            aste.push_back({nodi[0], nodi[2], TipoAsta::Fittizia, {dove.Piano}});
    }
    c.Aste = Distribuisci(c.Aste, aste);

    const Fila<GuscioGrezzo> gusci = std::exchange(c.Gusci, {});
    for (const Fila<Posizione> &pannello : Scelti(edificio.Tramezzi, fuori.Gusci))
        c.Guscio(c.Gusci.size() % 2 == 0 ? TipoGuscio::Eliminato : TipoGuscio::Fittizio, pannello,
                 {1});
    c.Gusci = Distribuisci(gusci, c.Gusci);
}

} // namespace telva::generatore
