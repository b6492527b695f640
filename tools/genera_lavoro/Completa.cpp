#include "Completa.h"

#include <utility>

namespace telva::generatore {

namespace {

constexpr int LunghezzaPalo = 150 * 100; // one pile segment
constexpr int MaxConci = 28;             // keeps the pile tips above -5000 cm

std::vector<std::size_t> SceltiUniformi(const std::vector<std::size_t> &tutti, std::size_t quanti) {
    std::vector<std::size_t> scelti;
    for (std::size_t s = 0; s < quanti; ++s) scelti.push_back(tutti[s * tutti.size() / quanti]);
    return scelti;
}

std::vector<std::size_t> CampiQuadri(const Cantiere &c) {
    std::vector<std::size_t> campi;
    for (std::size_t g = 0; g < c.Gusci.size(); ++g)
        if (c.Gusci[g].Tipo == TipoGuscio::Solaio && c.Gusci[g].Nodi[3] >= 0) campi.push_back(g);
    return campi;
}

bool AggiungiPali(Cantiere &c, int quanti) {
    std::vector<Posizione> teste;
    for (const Posizione &p : c.Nodi)
        if (p.Z == 0) teste.push_back(p);
    for (int concio = 0; concio < MaxConci; ++concio)
        for (const Posizione &testa : teste) {
            if (quanti-- <= 0) return true;
            const int z = -LunghezzaPalo * concio;
            c.Asta(TipoAsta::Palo, {testa.X, testa.Y, z}, {testa.X, testa.Y, z - LunghezzaPalo},
                   {0});
        }
    return quanti <= 0;
}

bool ApriCavedi(Cantiere &c, int quanti) {
    std::vector<std::size_t> possibili;
    for (std::size_t g = 0; g < c.Gusci.size(); ++g)
        if (c.Gusci[g].Cavedio) possibili.push_back(g);
    if (static_cast<std::size_t>(quanti) > possibili.size()) return false;
    std::vector<bool> via(c.Gusci.size(), false);
    for (const std::size_t g : SceltiUniformi(possibili, static_cast<std::size_t>(quanti)))
        via[g] = true;
    std::vector<GuscioGrezzo> restano;
    for (std::size_t g = 0; g < c.Gusci.size(); ++g)
        if (!via[g]) restano.push_back(c.Gusci[g]);
    c.Gusci = std::move(restano);
    return true;
}

// Two triangles in place of a rectangle: one shell more and no new node.
bool DividiCampi(Cantiere &c, int quanti) {
    const std::vector<std::size_t> campi = CampiQuadri(c);
    if (static_cast<std::size_t>(quanti) > campi.size()) return false;
    for (const std::size_t g : SceltiUniformi(campi, static_cast<std::size_t>(quanti))) {
        GuscioGrezzo meta = c.Gusci[g];
        meta.Nodi = {meta.Nodi[0], meta.Nodi[2], meta.Nodi[3], -1};
        meta.Cavedio = false;
        c.Gusci[g].Nodi[3] = -1;
        c.Gusci.push_back(meta);
    }
    return true;
}

bool AggiungiAste(Cantiere &c, const Edificio &edificio, int quante) {
    const std::vector<AstaCandidata> candidate = edificio.AsteAggiungibili();
    if (static_cast<std::size_t>(quante) > candidate.size()) return false;
    for (int a = 0; a < quante; ++a) {
        const AstaCandidata &asta = candidate[static_cast<std::size_t>(a)];
        c.Asta(asta.Tipo, asta.I, asta.J, asta.Dove);
    }
    return true;
}

} // namespace

bool Completa(Cantiere &cantiere, const Edificio &edificio, const Obiettivi &obiettivi,
              const FuoriVista &fuori) {
    const auto mancano = [](int voluti, const auto &tabella) {
        return voluti - static_cast<int>(tabella.size());
    };
    const int nodi = mancano(obiettivi.Nodi - fuori.NodiAssenti, cantiere.Nodi);
    if (nodi < 0 || !AggiungiPali(cantiere, nodi)) return false;
    const int aste =
        mancano(obiettivi.Aste - fuori.AsteAssenti - fuori.AsteNascoste, cantiere.Aste);
    if (aste < 0 || !AggiungiAste(cantiere, edificio, aste)) return false;
    const int gusci =
        mancano(obiettivi.Gusci - fuori.GusciAssenti - fuori.GusciNascosti, cantiere.Gusci);
    return gusci < 0 ? ApriCavedi(cantiere, -gusci) : DividiCampi(cantiere, gusci);
}

void AggiungiFuoriVista(Cantiere &cantiere, const Edificio &edificio, const FuoriVista &fuori) {
    std::vector<AstaGrezza> aste;
    const auto diagonali = static_cast<std::size_t>(fuori.AsteAssenti + fuori.AsteNascoste);
    for (const std::size_t g : SceltiUniformi(CampiQuadri(cantiere), diagonali)) {
        const GuscioGrezzo &campo = cantiere.Gusci[g];
        const bool assente = aste.size() % 2 == 0;
        const Luogo dove{campo.Dove.Piano, -1, -1};
        if (assente)
            aste.push_back({campo.Nodi[1], campo.Nodi[3], TipoAsta::Eliminata, dove});
        else
            aste.push_back({campo.Nodi[0], campo.Nodi[2], TipoAsta::Fittizia, dove});
    }
    cantiere.Aste = Distribuisci(cantiere.Aste, aste);

    const std::vector<std::vector<Posizione>> tramezzi = edificio.Tramezzi();
    const auto pannelli = static_cast<std::size_t>(fuori.GusciAssenti + fuori.GusciNascosti);
    Cantiere extra = cantiere;
    extra.Gusci.clear();
    for (std::size_t p = 0; p < pannelli; ++p)
        extra.Guscio(p % 2 == 0 ? TipoGuscio::Eliminato : TipoGuscio::Fittizio,
                     tramezzi[p * tramezzi.size() / pannelli], {1});
    cantiere.Gusci = Distribuisci(cantiere.Gusci, extra.Gusci);
}

} // namespace telva::generatore
