#include "Generatore.h"

#include "Aspetto.h"
#include "Casuale.h"
#include "Catene.h"
#include "Completa.h"
#include "Edificio.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <stdexcept>

namespace telva::generatore {
namespace {

// How large every table of the job becomes.
struct Misure {
    Obiettivi Conteggi; // all zero: the natural counts of the sample
    FuoriVista Fuori{.Nodi = 3, .Aste = 8, .Gusci = 6};
    int PuntiLiberi = 6; // points that no node uses
    int ElCont = 0, Spessori = SpessoriCampione, Sezioni = SezioniCampione, Testi = 4;
};

Misure MisureDi(int nodi, int gusci) {
    const auto parte = [nodi](int pieno, int minimo) {
        return std::max(minimo, (pieno * nodi + MaxNodi / 2) / MaxNodi);
    };
    const int assenti = nodi / 200 + 1;
    return {.Conteggi = {nodi, nodi, gusci},
            .Fuori = {.Nodi = assenti, .Aste = 2 * assenti, .Gusci = 2 * (gusci / 200 + 1)},
            .PuntiLiberi = assenti, // so that there are as many points as nodes
            .ElCont = parte(MaxElCont, 10),
            .Spessori = parte(MaxSpessori, SpessoriCampione),
            .Sezioni = parte(MaxSezioni, 9),
            .Testi = parte(MaxTesti, 4)};
}

Misure MisureDi(Taglia taglia) {
    switch (taglia) {
    case Taglia::Decimo: return MisureDi(MaxNodi / 10, MaxGusci / 10);
    case Taglia::Terzo: return MisureDi(MaxNodi / 3, MaxGusci / 3);
    case Taglia::Piena: return MisureDi(MaxNodi, MaxGusci);
    case Taglia::Campione: break;
    }
    return {};
}

struct Dimensioni {
    int X, Y, Piani;
    int Nodi() const { return (3 * X + 1) * (3 * Y + 1) * Piani; }
};

// Large buildings in the proportions of a real one, the nearest to the wanted size first.
Fila<Dimensioni> Possibili(int nodi) {
    Fila<Dimensioni> tutte;
    for (int x = 3; x <= 18; ++x)
        for (int y = std::max(2, x / 2); y <= x * 3 / 4 + 1; ++y)
            for (int piani = std::max(2, x * 3 / 5); piani <= std::min(13, x + 1); ++piani)
                if (const Dimensioni d{x, y, piani}; d.Nodi() < nodi) tutte.push_back(d);
    std::ranges::stable_sort(tutte, std::greater(), &Dimensioni::Nodi);
    return tutte;
}

Edificio CostruisciGrande(const Misure &misure, Casuale &caso) {
    for (const Dimensioni &d : Possibili(misure.Conteggi.Nodi)) {
        Edificio edificio = Costruisci(MagliaGrande(d.X, d.Y, d.Piani, caso));
        if (Completa(edificio, misure.Conteggi, misure.Fuori)) return edificio;
    }
    throw std::invalid_argument("nessun edificio ha questo numero di elementi");
}

Punto InCm(const Posizione &p) { return {p.X / 100.0, p.Y / 100.0, p.Z / 100.0}; }

// Unique ascending names 1..MaxNome with gaps; a large table ends exactly at MaxNome.
Fila<int> NomiCrescenti(int quanti, Casuale &caso) {
    int liberi = MaxNome - quanti;
    const int salto = std::clamp(liberi * 12 / std::max(1, quanti), 2, 12);
    Fila<int> nomi;
    for (int i = 0, nome = 0; i < quanti; ++i) {
        const int buco = caso.Intero(1, 10) == 1 ? std::min(liberi, caso.Intero(1, salto)) : 0;
        liberi -= buco;
        nomi.push_back(nome += 1 + buco);
    }
    if (quanti > MaxNome / 2) nomi.back() = MaxNome;
    return nomi;
}

Fila<int> Nomina(int quanti, Nomi ordine, Casuale &caso) {
    Fila<int> nomi = NomiCrescenti(quanti, caso);
    if (ordine == Nomi::Inversi) return {nomi.rbegin(), nomi.rend()};
    int da = caso.Intero(5, 30);
    while (true) { // neighbouring blocks change place here and there
        const int blocco = caso.Intero(2, 8);
        if (da + 2 * blocco >= quanti) return nomi;
        const auto inizio = nomi.begin() + da;
        std::rotate(inizio, inizio + blocco, inizio + 2 * blocco);
        da += 2 * blocco + caso.Intero(10, 50);
    }
}

// Points run along the verticals of the building while nodes run floor by floor; the free points
// stand in between. Gives the point of each node.
Fila<int> MettiPunti(const Fila<Posizione> &nodi, int liberi, Lavoro &lavoro) {
    Fila<int> ordine(nodi.size()), punto(nodi.size());
    std::iota(ordine.begin(), ordine.end(), 0);
    std::sort(ordine.begin(), ordine.end(), [&](int a, int b) { return nodi[a] < nodi[b]; });
    Posizione ultima;
    for (const int n : Distribuisci(ordine, Fila<int>(static_cast<std::size_t>(liberi), -1))) {
        if (n >= 0) punto[n] = static_cast<int>(lavoro.Punti.size());
        if (n >= 0) ultima = nodi[n];
        // a free one is a construction point above or below a real one
        lavoro.Punti.push_back(
            InCm(n >= 0 ? ultima : Posizione{ultima.X, ultima.Y, ultima.Z / 2 + 12345}));
    }
    return punto;
}

// Gives the index of each node in its table.
Fila<int> MettiNodi(const Cantiere &cantiere, const Misure &misure, Lavoro &lavoro) {
    const Fila<int> punto = MettiPunti(cantiere.Nodi, misure.PuntiLiberi, lavoro);
    const int quanti = cantiere.Nodi.Quanti(), numAssenti = misure.Fuori.Nodi;
    struct NodoInFile {
        int Grezzo;
        bool Assente; // a deleted node left on the point of another one
    };
    Fila<NodoInFile> presenti, assenti;
    for (int n = 0; n < quanti; ++n) presenti.push_back({n, false});
    for (int a = 0; a < numAssenti; ++a) assenti.push_back({a * quanti / numAssenti, true});
    const Fila<Nodo> aspetti = AspettoNodi(cantiere);
    Fila<int> indice(cantiere.Nodi.size());
    for (const auto &[n, assente] : Distribuisci(presenti, assenti)) {
        if (!assente) indice[n] = static_cast<int>(lavoro.Nodi.size());
        Nodo &nodo = lavoro.Nodi.emplace_back(aspetti[n]);
        nodo.IndicePunto = punto[n];
        nodo.Nome = assente ? 0 : 1;
    }
    return indice;
}

// Envelope: beams hang below their axis, everything else is on it.
Punto Ingombro(const Punto &asse, TipoAsta tipo) {
    const bool trave = tipo == TipoAsta::TraveX || tipo == TipoAsta::TraveY ||
                       tipo == TipoAsta::Secondaria || tipo == TipoAsta::Smusso;
    return {asse.X, asse.Y, trave ? asse.Z - 25 : asse.Z};
}

void MettiAste(const Cantiere &cantiere, int sezioni, const Fila<int> &indice, Lavoro &lavoro) {
    for (const AstaGrezza &grezza : cantiere.Aste) {
        Asta &asta = lavoro.Aste.emplace_back(AspettoAsta(grezza, sezioni));
        asta.NodoI = indice[grezza.I];
        asta.NodoJ = indice[grezza.J];
        asta.Nome = grezza.Tipo == TipoAsta::Eliminata ? 0 : 1;
        asta.IngI = Ingombro(InCm(cantiere.Nodi[grezza.I]), grezza.Tipo);
        asta.IngJ = Ingombro(InCm(cantiere.Nodi[grezza.J]), grezza.Tipo);
    }
}

// A fourth corner 0 could be mistaken for a missing one: such a shell starts from that corner.
void MettiGusci(const Cantiere &cantiere, int spessori, const Fila<int> &indice, Lavoro &lavoro) {
    for (const GuscioGrezzo &grezzo : cantiere.Gusci) {
        Guscio &guscio = lavoro.Gusci.emplace_back(AspettoGuscio(grezzo, spessori));
        std::transform(grezzo.Nodi.begin(), grezzo.Nodi.end(), guscio.Nodi.begin(),
                       [&](int n) { return n < 0 ? -1 : indice[n]; });
        if (guscio.Nodi[3] == 0)
            std::rotate(guscio.Nodi.begin(), guscio.Nodi.begin() + 3, guscio.Nodi.end());
        guscio.Nome = grezzo.Tipo == TipoGuscio::Eliminato ? 0 : 1;
    }
}

// Gives names to the elements marked as present (name 1).
template <class T>
void NominaTabella(std::vector<T> &tabella, Nomi ordine, Casuale &caso) {
    const auto presenti = std::ranges::count_if(tabella, [](const T &e) { return e.Nome > 0; });
    const Fila<int> nomi = Nomina(static_cast<int>(presenti), ordine, caso);
    auto nome = nomi.begin();
    for (T &elemento : tabella)
        if (elemento.Nome > 0) elemento.Nome = *nome++;
}

void MettiElCont(const Cantiere &cantiere, int quanti, Nomi ordine, Casuale &caso, Lavoro &lavoro) {
    const Fila<Catena> catene = Catene(cantiere.Aste, quanti);
    const Fila<int> numeri = Nomina(catene.Quanti(), ordine, caso);
    for (int c = 0; c < catene.Quanti(); ++c) {
        ElCont elemento{numeri[c], c % 5 + 1, catene[c].Nome, {}};
        for (const int a : catene[c].Aste)
            elemento.Aste.push_back(lavoro.Aste[static_cast<std::size_t>(a)].Nome);
        lavoro.ElementiContinui.push_back(elemento);
    }
}

const char *TitoloDi(Taglia misura) {
    switch (misura) {
    case Taglia::Decimo: return "Edificio di prova, un decimo della capacità";
    case Taglia::Terzo: return "Edificio di prova, un terzo della capacità";
    case Taglia::Piena: return "Edificio di prova, piena capacità";
    case Taglia::Campione: break;
    }
    return "Edificio campione, unità A";
}

void MettiTesti(int quanti, Lavoro &lavoro) {
    lavoro.SezioniSaltate[0] = {"1 1 0.00 -2.50", "2 1 0.00 -4.00", "3 2 1.50 0.00"};
    lavoro.SezioniSaltate[1] = {"1, \"permanente\", 1.3", "2, \"variabile, cat. A\", 1.5"};
    lavoro.SezioniSaltate[2] = {"Combinazione 1: stato limite ultimo", "",
                                "Combinazione 2: sisma (più torsione)", "0"};
    for (int t = 1; t <= quanti; ++t)
        lavoro.TestiFinali.emplace_back("Nota " + std::to_string(t) + ": quota più alta, foglio " +
                                            std::to_string(1 + t % 7),
                                        std::to_string(t) + " 0 1");
}

} // namespace

Lavoro Genera(const Parametri &parametri) {
    Casuale caso(1);
    const Misure misure = MisureDi(parametri.Misura);
    Edificio edificio = misure.Conteggi.Nodi > 0 ? CostruisciGrande(misure, caso)
                                                 : Costruisci(MagliaCampione(caso));
    AggiungiFuoriVista(edificio, misure.Fuori);
    const Cantiere &cantiere = edificio.Elementi;
    Lavoro lavoro;
    const Fila<int> indice = MettiNodi(cantiere, misure, lavoro);
    MettiAste(cantiere, misure.Sezioni, indice, lavoro);
    MettiGusci(cantiere, misure.Spessori, indice, lavoro);
    NominaTabella(lavoro.Nodi, parametri.Ordine, caso);
    NominaTabella(lavoro.Aste, parametri.Ordine, caso);
    NominaTabella(lavoro.Gusci, parametri.Ordine, caso);
    MettiElCont(cantiere, misure.ElCont, parametri.Ordine, caso, lavoro);
    lavoro.Spessori = SchedeSpessore(misure.Spessori);
    lavoro.Sezioni = SchedeSezione(misure.Sezioni);
    MettiTesti(misure.Testi, lavoro);
    lavoro.Titolo = TitoloDi(parametri.Misura);
    return lavoro;
}

} // namespace telva::generatore
