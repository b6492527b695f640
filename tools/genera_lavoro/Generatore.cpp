#include "Generatore.h"

#include "Casuale.h"
#include "Catene.h"
#include "Edificio.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"

#include <algorithm>
#include <numeric>

namespace telva::generatore {
namespace {

constexpr int kMaxNome = 32000;
constexpr int kLunghezzaPalo = 150 * 100; // one segment

struct Conteggi {
    int Punti = 0, Nodi = 0, Aste = 0, Gusci = 0, ElCont = 0;
};

// What a job of each size holds.
struct Misure {
    const char *Titolo;
    Dimensioni Campate{}; // of a large building
    std::uint64_t Primo;  // of the random numbers
    Conteggi Tutti{};     // elements of each kind; none: as the building comes
    Conteggi FuoriVista;  // of them: nodes absent, bars and shells absent or hidden; points free
    Schede Quante;
};

// By Taglia.
constexpr std::array<Misure, 4> kMisure{{
    {.Titolo = "Edificio campione, unità A",
     .Primo = 4,
     .FuoriVista = {.Punti = 6, .Nodi = 3, .Aste = 8, .Gusci = 6},
     .Quante = {.Spessori = 8, .Sezioni = 14, .Testi = 4}},
    {.Titolo = "Edificio di prova, un decimo della capacità",
     .Campate = {.X = 6, .Y = 5, .Piani = 6},
     .Primo = 26,
     .Tutti = {.Nodi = 2000, .Aste = 2000, .Gusci = 1600, .ElCont = 200},
     .FuoriVista = {.Punti = 11, .Nodi = 11, .Aste = 22, .Gusci = 18},
     .Quante = {.Spessori = 10, .Sezioni = 10, .Testi = 20}},
    {.Titolo = "Edificio di prova, un terzo della capacità",
     .Campate = {.X = 9, .Y = 7, .Piani = 10},
     .Primo = 144,
     .Tutti = {.Nodi = 6667, .Aste = 6667, .Gusci = 5333, .ElCont = 667},
     .FuoriVista = {.Punti = 34, .Nodi = 34, .Aste = 68, .Gusci = 54},
     .Quante = {.Spessori = 33, .Sezioni = 33, .Testi = 67}},
    {.Titolo = "Edificio di prova, piena capacità",
     .Campate = {.X = 16, .Y = 9, .Piani = 13},
     .Primo = 488,
     .Tutti = {.Nodi = kNodi, .Aste = kAste, .Gusci = kGusci, .ElCont = kElCont},
     .FuoriVista = {.Punti = 101, .Nodi = 101, .Aste = 202, .Gusci = 162},
     .Quante = {.Spessori = kSchedeSpessore, .Sezioni = kSchedeSezione, .Testi = kTesti}},
}};

// So many of them at equal distances.
template <class T>
Fila<T> Scelti(const Fila<T> &tutti, int quanti) {
    Fila<T> scelti;
    for (int s = 0; s < quanti; ++s) scelti.push_back(tutti[s * tutti.Quanti() / quanti]);
    return scelti;
}

// Puts the extra items among the others at equal distances, both in their order.
template <class T>
Fila<T> Distribuisci(const Fila<T> &tutti, const Fila<T> &extra) {
    Fila<T> misti = tutti;
    for (int e = extra.Quanti(); e-- > 0;) // from behind: the places in front stay
        misti.insert(misti.begin() + tutti.Quanti() * (e + 1) / (extra.Quanti() + 1), extra[e]);
    return misti;
}

// One more pile segment under every foot of the building, until there are enough of them.
void AggiungiPali(Edificio &e, int quanti) {
    Fila<Posizione> teste;
    for (const Posizione &p : e.Nodi)
        if (p.Z == 0) teste.push_back(p);
    for (int n = 0; n < quanti; ++n) {
        Posizione &testa = teste[n % teste.Quanti()];
        const Posizione punta{testa.X, testa.Y, testa.Z - kLunghezzaPalo};
        e.Metti(kPalo, testa, punta, {0});
        testa = punta;
    }
}

// Adds piles and secondary beams and leaves out panels, until the building holds so many elements.
void Completa(Edificio &e, const Misure &misure) {
    const Conteggi &tutti = misure.Tutti, &fuori = misure.FuoriVista;
    AggiungiPali(e, tutti.Nodi - fuori.Nodi - e.Nodi.Quanti());
    e.Secondarie.StaccaDa(tutti.Aste - fuori.Aste - e.Aste.Quanti());
    e.Aste.Aggiungi(e.Secondarie);
    const int troppi = e.Gusci.Quanti() - (tutti.Gusci - fuori.Gusci);
    const Fila<int> via = Scelti(e.Cavedi, troppi);
    for (auto g = via.rbegin(); g != via.rend(); ++g) e.Gusci.erase(e.Gusci.begin() + *g);
}

// Adds absent and hidden bars (diagonals of floor panels) and shells by turns.
void AggiungiFuoriVista(Edificio &e, const Conteggi &quanti) {
    Fila<Guscio> campi;
    for (const Guscio &g : e.Gusci)
        if (g.Tipo.Spessore == kSolai[0].Spessore && g.Nodi[3] >= 0) campi.push_back(g);
    Fila<Asta> diagonali;
    for (const auto &[nodi, tipo, piano, nome] : Scelti(campi, quanti.Aste))
        if (diagonali.Quanti() % 2 == 0)
            diagonali.push_back({nodi[1], nodi[3], kAstaAssente, {piano}, 0});
        else
            diagonali.push_back({nodi[0], nodi[2], kAstaNascosta, {piano}});
    e.Aste = Distribuisci(e.Aste, diagonali);

    Fila<Guscio> pannelli = Scelti(e.Tramezzi, quanti.Gusci);
    for (int p = 0; p < pannelli.Quanti(); ++p) {
        pannelli[p].Piano = 1;
        if (p % 2 == 1) continue;
        pannelli[p].Tipo = kGuscioAssente;
        pannelli[p].Nome = 0;
    }
    e.Gusci = Distribuisci(e.Gusci, pannelli);
}

// Unique ascending names 1..kMaxNome with gaps; a large table ends exactly at kMaxNome.
Fila<int> NomiCrescenti(int quanti, Casuale &caso) {
    int liberi = kMaxNome - quanti;
    const int salto = std::clamp(liberi * 12 / quanti, 2, 12);
    Fila<int> nomi;
    for (int i = 0, nome = 0; i < quanti; ++i) {
        const int buco = caso.Intero(1, 10) == 1 ? std::min(liberi, caso.Intero(1, salto)) : 0;
        liberi -= buco;
        nomi.push_back(nome += 1 + buco);
    }
    if (quanti > kMaxNome / 2) nomi.back() = kMaxNome;
    return nomi;
}

Fila<int> NomiDati(int quanti, Nomi ordine, Casuale &caso) {
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

// Gives names to the elements that are present.
template <class T>
void Nomina(Fila<T> &tabella, Nomi ordine, Casuale &caso) {
    const auto presenti = std::ranges::count_if(tabella, [](const T &e) { return e.Nome > 0; });
    const Fila<int> nomi = NomiDati(static_cast<int>(presenti), ordine, caso);
    auto nome = nomi.begin();
    for (T &elemento : tabella)
        if (elemento.Nome > 0) elemento.Nome = *nome++;
}

// What each node belongs to, from its height and from the elements that meet there.
Fila<Ruolo> Ruoli(const Edificio &e) {
    Fila<Ruolo> ruoli(e.Nodi.size(), Ruolo::Rete);
    for (const Guscio &g : e.Gusci)
        for (const int n : g.Nodi)
            if (n >= 0) ruoli[n] = std::max(ruoli[n], g.Tipo.Nodi);
    for (const Asta &a : e.Aste)
        for (const int n : {a.I, a.J}) ruoli[n] = std::max(ruoli[n], a.Tipo.Nodi);
    for (int n = 0; n < ruoli.Quanti(); ++n)
        if (e.Nodi[n].Z <= 0) ruoli[n] = e.Nodi[n].Z < 0 ? Ruolo::Palo : Ruolo::Base;
    return ruoli;
}

// A few nodes of the cores are hidden, some bases are hinged.
TipoNodo TipoDi(Ruolo ruolo, int n) {
    TipoNodo tipo = kTipiNodo.at(static_cast<std::size_t>(ruolo));
    if (ruolo == Ruolo::Nucleo && n % 5 == 0) tipo.Colore = kColoreNascosto;
    if (ruolo == Ruolo::Base && n % 4 == 3) tipo.Vincolo = 2;
    return tipo;
}

// Points run along the verticals of the building while nodes run floor by floor; the free points
// stand in between. Gives the point of each node.
Fila<int> MettiPunti(const Fila<Posizione> &nodi, int liberi, Lavoro &lavoro) {
    constexpr int kLibero = -1;
    Fila<int> ordine(nodi.size()), punto(nodi.size());
    std::iota(ordine.begin(), ordine.end(), 0);
    std::ranges::sort(ordine, {}, [&](int n) { return nodi[n]; });
    Posizione ultima;
    for (const int n : Distribuisci(ordine, Fila<int>(static_cast<std::size_t>(liberi), kLibero))) {
        if (n == kLibero) { // a construction point above or below a real one
            lavoro.Punti.push_back({ultima.X, ultima.Y, ultima.Z / 2 + 12345});
            continue;
        }
        punto[n] = lavoro.Punti.Quanti();
        lavoro.Punti.push_back(ultima = nodi[n]);
    }
    return punto;
}

// The nodes of the site, and absent ones left on the points of others. Gives the place of each node
// in its table.
Fila<int> MettiNodi(const Edificio &edificio, const Misure &misure, Lavoro &lavoro) {
    const Fila<int> punto = MettiPunti(edificio.Nodi, misure.FuoriVista.Punti, lavoro);
    Fila<Nodo> presenti;
    for (const Ruolo ruolo : Ruoli(edificio)) {
        const int n = presenti.Quanti();
        presenti.push_back({punto[n], TipoDi(ruolo, n)});
    }
    Fila<Nodo> assenti = Scelti(presenti, misure.FuoriVista.Nodi);
    for (Nodo &nodo : assenti) nodo.Nome = 0;
    lavoro.Nodi = Distribuisci(presenti, assenti);
    Fila<int> posti;
    for (int n = 0; n < lavoro.Nodi.Quanti(); ++n)
        if (lavoro.Nodi[n].Nome > 0) posti.push_back(n);
    return posti;
}

void MettiElementi(const Edificio &edificio, const Fila<int> &posti, Lavoro &lavoro) {
    lavoro.Aste = edificio.Aste;
    for (Asta &asta : lavoro.Aste) {
        asta.I = posti[asta.I];
        asta.J = posti[asta.J];
    }
    lavoro.Gusci = edificio.Gusci;
    for (Guscio &guscio : lavoro.Gusci)
        for (int &n : guscio.Nodi)
            if (n >= 0) n = posti[n];
}

} // namespace

Lavoro Genera(Taglia taglia, Nomi ordine) {
    const Misure &misure = kMisure.at(static_cast<std::size_t>(taglia));
    Casuale caso(misure.Primo);
    const bool campione = taglia == Taglia::Campione;
    Edificio edificio =
        Costruisci(campione ? MagliaCampione() : MagliaGrande(misure.Campate, caso));
    if (!campione) Completa(edificio, misure);
    AggiungiFuoriVista(edificio, misure.FuoriVista);
    Lavoro lavoro{misure.Titolo, misure.Quante};
    MettiElementi(edificio, MettiNodi(edificio, misure, lavoro), lavoro);
    lavoro.ElementiContinui = Catene(lavoro.Aste, misure.Tutti.ElCont);
    Nomina(lavoro.Nodi, ordine, caso);
    Nomina(lavoro.Aste, ordine, caso);
    Nomina(lavoro.Gusci, ordine, caso);
    Nomina(lavoro.ElementiContinui, ordine, caso);
    return lavoro;
}

} // namespace telva::generatore
