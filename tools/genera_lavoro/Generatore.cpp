#include "Generatore.h"

#include "Aspetto.h"
#include "Casuale.h"
#include "Catene.h"
#include "Completa.h"
#include "Edificio.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace telva::generatore {

namespace {

// How large every table of the job becomes.
struct Misure {
    Obiettivi Conteggi; // all zero: the natural counts of the sample
    FuoriVista Fuori;
    int PuntiLiberi = 0; // points that no node uses
    int ElCont = 0, Spessori = SpessoriCampione, Sezioni = SezioniCampione, Testi = 4;
};

struct NodoInFile {
    std::size_t Grezzo;
    bool Assente; // a deleted node left on the point of another one
};

Misure MisureDi(int nodi, int gusci) {
    const auto parte = [nodi](int pieno, int minimo) {
        return std::max(minimo, (pieno * nodi + MaxNodi / 2) / MaxNodi);
    };
    Misure m;
    m.Conteggi = {nodi, nodi, gusci};
    m.Fuori = {nodi / 200 + 1, nodi / 200 + 1, nodi / 200 + 1, gusci / 200 + 1, gusci / 200 + 1};
    m.PuntiLiberi = m.Fuori.NodiAssenti; // so that there are as many points as nodes
    m.ElCont = parte(MaxElCont, 10);
    m.Spessori = parte(MaxSpessori, SpessoriCampione);
    m.Sezioni = parte(MaxSezioni, 9);
    m.Testi = parte(MaxTesti, 4);
    return m;
}

Misure MisureDi(const Parametri &p) {
    switch (p.Misura) {
    case Taglia::Decimo: return MisureDi(MaxNodi / 10, MaxGusci / 10);
    case Taglia::Terzo: return MisureDi(MaxNodi / 3, MaxGusci / 3);
    case Taglia::Piena: return MisureDi(MaxNodi, MaxGusci);
    case Taglia::Campione: break;
    }
    Misure m;
    m.Fuori = {3, 4, 4, 3, 3};
    m.PuntiLiberi = 6;
    return m;
}

struct Dimensioni {
    int X, Y, Piani;
    int Nodi() const { return (3 * X + 1) * (3 * Y + 1) * Piani; }
};

// Large buildings in the proportions of a real one, the nearest to the wanted size first.
std::vector<Dimensioni> Possibili(int nodi) {
    std::vector<Dimensioni> tutte;
    for (int x = 3; x <= 18; ++x)
        for (int y = std::max(2, x / 2); y <= x * 3 / 4 + 1; ++y)
            for (int piani = std::max(2, x * 3 / 5); piani <= std::min(13, x + 1); ++piani)
                if (const Dimensioni d{x, y, piani}; d.Nodi() < nodi) tutte.push_back(d);
    std::stable_sort(tutte.begin(), tutte.end(),
                     [](const Dimensioni &a, const Dimensioni &b) { return a.Nodi() > b.Nodi(); });
    return tutte;
}

Cantiere CostruisciEsatto(const Misure &misure, Casuale &caso) {
    for (const Dimensioni &d : Possibili(misure.Conteggi.Nodi)) {
        Cantiere cantiere;
        Edificio edificio(MagliaGrande(d.X, d.Y, d.Piani, caso), cantiere);
        edificio.Costruisci();
        if (!Completa(cantiere, edificio, misure.Conteggi, misure.Fuori)) continue;
        AggiungiFuoriVista(cantiere, edificio, misure.Fuori);
        return cantiere;
    }
    throw std::invalid_argument("nessun edificio ha questo numero di elementi");
}

Cantiere CostruisciCampione(const Misure &misure, Casuale &caso) {
    Cantiere cantiere;
    Edificio edificio(MagliaCampione(caso), cantiere);
    edificio.Costruisci();
    AggiungiFuoriVista(cantiere, edificio, misure.Fuori);
    return cantiere;
}

Punto InCm(const Posizione &p) { return {p.X / 100.0, p.Y / 100.0, p.Z / 100.0}; }

// Unique ascending names 1..MaxNome with gaps; a large table ends exactly at MaxNome.
std::vector<int> NomiCrescenti(std::size_t quanti, Casuale &caso) {
    const int n = static_cast<int>(quanti);
    int liberi = MaxNome - n;
    const int salto = std::clamp(liberi * 12 / std::max(1, n), 2, 12);
    std::vector<int> nomi;
    int nome = 0;
    for (int i = 0; i < n; ++i) {
        const int buco = caso.Intero(1, 10) == 1 ? std::min(liberi, caso.Intero(1, salto)) : 0;
        liberi -= buco;
        nome += 1 + buco;
        nomi.push_back(nome);
    }
    if (n > MaxNome / 2) nomi.back() = MaxNome;
    return nomi;
}

std::vector<int> Nomina(std::size_t quanti, Nomi ordine, Casuale &caso) {
    std::vector<int> nomi = NomiCrescenti(quanti, caso);
    if (ordine == Nomi::Inversi) {
        std::reverse(nomi.begin(), nomi.end());
        return nomi;
    }
    std::size_t da = static_cast<std::size_t>(caso.Intero(5, 30));
    while (true) { // neighbouring blocks change place here and there
        const std::ptrdiff_t blocco = caso.Intero(2, 8);
        if (da + static_cast<std::size_t>(2 * blocco) >= nomi.size()) return nomi;
        const auto inizio = nomi.begin() + static_cast<std::ptrdiff_t>(da);
        std::rotate(inizio, inizio + blocco, inizio + 2 * blocco);
        da += static_cast<std::size_t>(2 * blocco + caso.Intero(10, 50));
    }
}

// Points run along the verticals of the building while nodes run floor by floor; the free points
// stand in between.
std::vector<Punto> OrdinaPunti(const Cantiere &cantiere, int liberi,
                               std::vector<int> &puntoDelGrezzo) {
    const std::vector<Posizione> &nodi = cantiere.Nodi;
    std::vector<int> ordine(nodi.size());
    std::iota(ordine.begin(), ordine.end(), 0);
    std::sort(ordine.begin(), ordine.end(), [&nodi](int a, int b) {
        return nodi[static_cast<std::size_t>(a)] < nodi[static_cast<std::size_t>(b)];
    });
    const std::vector<int> conLiberi =
        Distribuisci(ordine, std::vector<int>(static_cast<std::size_t>(liberi), -1));
    std::vector<Punto> punti;
    puntoDelGrezzo.assign(nodi.size(), 0);
    Posizione ultima;
    for (const int grezzo : conLiberi) {
        if (grezzo >= 0) {
            ultima = nodi[static_cast<std::size_t>(grezzo)];
            puntoDelGrezzo[static_cast<std::size_t>(grezzo)] = static_cast<int>(punti.size());
            punti.push_back(InCm(ultima));
        } else { // a construction point above or below a real one
            punti.push_back(InCm({ultima.X, ultima.Y, ultima.Z / 2 + 12345}));
        }
    }
    return punti;
}

std::vector<int> MettiNodi(const Cantiere &cantiere, const Misure &misure, Lavoro &lavoro) {
    std::vector<int> puntoDelGrezzo;
    lavoro.Punti = OrdinaPunti(cantiere, misure.PuntiLiberi, puntoDelGrezzo);
    std::vector<NodoInFile> presenti, assenti;
    const std::size_t quanti = cantiere.Nodi.size();
    for (std::size_t n = 0; n < quanti; ++n) presenti.push_back({n, false});
    const auto numAssenti = static_cast<std::size_t>(misure.Fuori.NodiAssenti);
    for (std::size_t a = 0; a < numAssenti; ++a) assenti.push_back({a * quanti / numAssenti, true});
    const std::vector<Nodo> aspetti = AspettoNodi(cantiere);
    std::vector<int> indice(quanti);
    for (const NodoInFile &n : Distribuisci(presenti, assenti)) {
        Nodo nodo = aspetti[n.Grezzo];
        nodo.IndicePunto = puntoDelGrezzo[n.Grezzo];
        nodo.Nome = n.Assente ? 0 : 1;
        if (!n.Assente) indice[n.Grezzo] = static_cast<int>(lavoro.Nodi.size());
        lavoro.Nodi.push_back(nodo);
    }
    return indice;
}

// Envelope: beams hang below their axis, everything else is on it.
Punto Ingombro(const Punto &asse, TipoAsta tipo) {
    const bool trave = tipo == TipoAsta::TraveX || tipo == TipoAsta::TraveY ||
                       tipo == TipoAsta::Secondaria || tipo == TipoAsta::Smusso;
    return {asse.X, asse.Y, trave ? asse.Z - 25 : asse.Z};
}

void MettiAste(const Cantiere &cantiere, const Misure &misure, const std::vector<int> &indice,
               Lavoro &lavoro) {
    for (const AstaGrezza &grezza : cantiere.Aste) {
        Asta asta = AspettoAsta(grezza, misure.Sezioni);
        const auto i = static_cast<std::size_t>(grezza.I);
        const auto j = static_cast<std::size_t>(grezza.J);
        asta.NodoI = indice[i];
        asta.NodoJ = indice[j];
        asta.Nome = grezza.Tipo == TipoAsta::Eliminata ? 0 : 1;
        asta.IngI = Ingombro(InCm(cantiere.Nodi[i]), grezza.Tipo);
        asta.IngJ = Ingombro(InCm(cantiere.Nodi[j]), grezza.Tipo);
        lavoro.Aste.push_back(asta);
    }
}

// A fourth corner 0 could be mistaken for a missing one: such a shell starts from that corner.
void MettiGusci(const Cantiere &cantiere, const Misure &misure, const std::vector<int> &indice,
                Lavoro &lavoro) {
    for (const GuscioGrezzo &grezzo : cantiere.Gusci) {
        Guscio guscio = AspettoGuscio(grezzo, misure.Spessori);
        for (std::size_t a = 0; a < guscio.Nodi.size(); ++a)
            guscio.Nodi[a] =
                grezzo.Nodi[a] < 0 ? -1 : indice[static_cast<std::size_t>(grezzo.Nodi[a])];
        if (guscio.Nodi[3] == 0)
            std::rotate(guscio.Nodi.begin(), guscio.Nodi.begin() + 3, guscio.Nodi.end());
        guscio.Nome = grezzo.Tipo == TipoGuscio::Eliminato ? 0 : 1;
        lavoro.Gusci.push_back(guscio);
    }
}

// Gives names to the elements marked as present (name 1).
template <class T>
void NominaTabella(std::vector<T> &tabella, Nomi ordine, Casuale &caso) {
    const auto presenti = static_cast<std::size_t>(
        std::count_if(tabella.begin(), tabella.end(), [](const T &e) { return e.Nome > 0; }));
    const std::vector<int> nomi = Nomina(presenti, ordine, caso);
    auto nome = nomi.begin();
    for (T &elemento : tabella)
        if (elemento.Nome > 0) elemento.Nome = *nome++;
}

void MettiElCont(const Cantiere &cantiere, const Misure &misure, Nomi ordine, Casuale &caso,
                 Lavoro &lavoro) {
    const std::vector<Catena> catene = Catene(cantiere.Aste, misure.ElCont);
    const std::vector<int> numeri = Nomina(catene.size(), ordine, caso);
    for (std::size_t c = 0; c < catene.size(); ++c) {
        ElCont elemento{numeri[c], static_cast<int>(c % 5) + 1, catene[c].Nome, {}};
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

void MettiTesti(const Misure &misure, Lavoro &lavoro) {
    lavoro.SezioniSaltate[0] = {"1 1 0.00 -2.50", "2 1 0.00 -4.00", "3 2 1.50 0.00"};
    lavoro.SezioniSaltate[1] = {"1, \"permanente\", 1.3", "2, \"variabile, cat. A\", 1.5"};
    lavoro.SezioniSaltate[2] = {"Combinazione 1: stato limite ultimo", "",
                                "Combinazione 2: sisma (più torsione)", "0"};
    for (int t = 1; t <= misure.Testi; ++t)
        lavoro.TestiFinali.emplace_back("Nota " + std::to_string(t) + ": quota più alta, foglio " +
                                            std::to_string(1 + t % 7),
                                        std::to_string(t) + " 0 1");
}

} // namespace

Lavoro Genera(const Parametri &parametri) {
    Casuale caso(1);
    const Misure misure = MisureDi(parametri);
    const Cantiere cantiere = misure.Conteggi.Nodi > 0 ? CostruisciEsatto(misure, caso)
                                                       : CostruisciCampione(misure, caso);
    Lavoro lavoro;
    const std::vector<int> indice = MettiNodi(cantiere, misure, lavoro);
    MettiAste(cantiere, misure, indice, lavoro);
    MettiGusci(cantiere, misure, indice, lavoro);
    NominaTabella(lavoro.Nodi, parametri.Ordine, caso);
    NominaTabella(lavoro.Aste, parametri.Ordine, caso);
    NominaTabella(lavoro.Gusci, parametri.Ordine, caso);
    MettiElCont(cantiere, misure, parametri.Ordine, caso, lavoro);
    lavoro.Spessori = SchedeSpessore(misure.Spessori);
    lavoro.Sezioni = SchedeSezione(misure.Sezioni);
    MettiTesti(misure, lavoro);
    lavoro.Titolo = TitoloDi(parametri.Misura);
    return lavoro;
}

} // namespace telva::generatore
