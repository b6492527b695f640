#include "Aspetto.h"

#include <algorithm>

namespace telva::generatore {
namespace {

struct StileAsta {
    int Colore, Linea, Sezione, Svincolo, Orientamento;
};

StileAsta Stile(TipoAsta tipo) {
    switch (tipo) {
    case TipoAsta::Pilastro: return {1, 0, 1, 0, 1};
    case TipoAsta::TraveX: return {5, 0, 2, 0, 3};
    case TipoAsta::TraveY: return {5, 0, 3, 0, 4};
    case TipoAsta::Smusso: return {5, 0, 4, 0, 3};
    case TipoAsta::Secondaria: return {8, 3, 5, 2, 3};
    case TipoAsta::Controvento: return {7, 1, 6, 1, 5};
    case TipoAsta::Puntone: return {9, 0, 7, 3, 6};
    case TipoAsta::Arcareccio: return {9, 2, 8, 2, 6};
    case TipoAsta::Monaco: return {1, 4, 9, 0, 1};
    case TipoAsta::Cordolo: return {6, 0, 10, 0, 3};
    case TipoAsta::Palo: return {2, 4, 11, 0, 0};
    case TipoAsta::Mensola: return {3, 0, 12, 0, 4};
    case TipoAsta::Fittizia: return {10, 4, 0, 1, 0};
    case TipoAsta::Eliminata: break;
    }
    return {3, 1, 6, 0, 0};
}

struct StileGuscio {
    int Colore, Tratteggio, Spessore;
};

StileGuscio Stile(TipoGuscio tipo, int piano) {
    constexpr std::array<int, 3> perPiano{8, 4, 5};
    const std::size_t turno = static_cast<std::size_t>(std::max(0, piano - 1)) % perPiano.size();
    switch (tipo) {
    case TipoGuscio::Solaio: return {perPiano[turno], 1 + static_cast<int>(turno), 1};
    case TipoGuscio::Balcone: return {3, 4, 2};
    case TipoGuscio::Nucleo: return {4, 5, 3};
    case TipoGuscio::Parete: return {6, 6, 4};
    case TipoGuscio::Falda: return {9, 7, 5};
    case TipoGuscio::Lucernario: return {8, 8, 6};
    case TipoGuscio::Copertina: return {4, 0, 7};
    case TipoGuscio::Fittizio: return {11, 0, 0};
    case TipoGuscio::Eliminato: break;
    }
    return {3, 6, 4};
}

// Cards repeat with small differences storey by storey, as far as the table reaches.
int Scheda(int base, int passo, int piano, int quante) {
    if (base == 0) return 0;
    const int varianti = std::max(1, quante / passo);
    return (base - 1 + passo * (std::max(0, piano - 1) % varianti)) % quante + 1;
}

constexpr int PassoSezioni = 12;
constexpr int PassoSpessori = 8;

enum class Ruolo { Giunto, Rete, Base, Palo, Copertura, Nucleo };

// What each node belongs to, from its height and from the elements that meet there.
Fila<Ruolo> Ruoli(const Cantiere &cantiere) {
    Fila<Ruolo> ruoli(cantiere.Nodi.size(), Ruolo::Rete);
    for (const GuscioGrezzo &g : cantiere.Gusci)
        for (const int n : g.Nodi)
            if (n >= 0 && g.Tipo == TipoGuscio::Nucleo) ruoli[n] = Ruolo::Nucleo;
    for (const AstaGrezza &a : cantiere.Aste) {
        if (a.Tipo == TipoAsta::Fittizia || a.Tipo == TipoAsta::Eliminata ||
            a.Tipo == TipoAsta::Monaco)
            continue;
        const bool copertura = a.Tipo == TipoAsta::Puntone || a.Tipo == TipoAsta::Arcareccio;
        for (const int n : {a.I, a.J})
            if (!copertura || ruoli[n] != Ruolo::Giunto)
                ruoli[n] = copertura ? Ruolo::Copertura : Ruolo::Giunto;
    }
    for (int n = 0; n < ruoli.Quanti(); ++n)
        if (cantiere.Nodi[n].Z <= 0) ruoli[n] = cantiere.Nodi[n].Z < 0 ? Ruolo::Palo : Ruolo::Base;
    return ruoli;
}

// Point type, colour and constraint; a few nodes of the cores are hidden, some bases are hinged.
Nodo AspettoNodo(Ruolo ruolo, int n) {
    const auto aspetto = [](int tipo, int colore, int vincolo) {
        return Nodo{0, tipo, colore, 0, vincolo};
    };
    switch (ruolo) {
    case Ruolo::Giunto: return aspetto(0, 1, 0);
    case Ruolo::Base: return aspetto(2, 3, n % 4 == 3 ? 2 : 1);
    case Ruolo::Palo: return aspetto(2, 2, 3);
    case Ruolo::Copertura: return aspetto(3, 9, 0);
    case Ruolo::Nucleo: return aspetto(1, n % 5 == 0 ? 10 : 4, 0);
    case Ruolo::Rete: break;
    }
    return aspetto(1, 8, 0);
}

} // namespace

Asta AspettoAsta(const AstaGrezza &grezza, int numSezioni) {
    const StileAsta stile = Stile(grezza.Tipo);
    const auto [piano, x, y] = grezza.Dove;
    const bool pilastro = grezza.Tipo == TipoAsta::Pilastro;
    const bool leggero = pilastro && numSezioni == SezioniCampione && piano > 3;
    Asta asta;
    asta.TipoLinea = stile.Linea;
    asta.Colore = stile.Colore;
    asta.Sezione = leggero ? 13 : Scheda(stile.Sezione, PassoSezioni, piano, numSezioni);
    asta.Svincolo = stile.Svincolo;
    asta.Orientamento = stile.Orientamento + (pilastro ? (x + y) % 2 : 0);
    asta.Dato5 = piano;
    asta.Dato6 = stile.Svincolo > 0 ? 1 : 0;
    return asta;
}

Guscio AspettoGuscio(const GuscioGrezzo &grezzo, int numSpessori) {
    const int piano = grezzo.Dove.Piano;
    const StileGuscio stile = Stile(grezzo.Tipo, piano);
    Guscio guscio;
    guscio.Tratteggio = stile.Tratteggio;
    guscio.Colore = stile.Colore;
    guscio.Spessore = Scheda(stile.Spessore, PassoSpessori, piano, numSpessori);
    guscio.Valore = 0.25 * (piano % 4);
    return guscio;
}

Fila<Nodo> AspettoNodi(const Cantiere &cantiere) {
    Fila<Nodo> nodi;
    for (const Ruolo ruolo : Ruoli(cantiere)) nodi.push_back(AspettoNodo(ruolo, nodi.Quanti()));
    return nodi;
}

std::vector<SchedaSpessore> SchedeSpessore(int quante) {
    constexpr std::array<SchedaSpessore, PassoSpessori> tipi{
        {{5, 22}, {1, 15}, {2, 30}, {2, 25}, {3, 0.8}, {6, 0.6}, {1, 20}, {3, 1}}};
    std::vector<SchedaSpessore> schede;
    for (int n = 0; n < quante; ++n) {
        SchedaSpessore scheda = tipi[static_cast<std::size_t>(n % PassoSpessori)];
        const int variante = n / PassoSpessori;
        if (scheda.Valore > 1) scheda.Valore += 0.5 * variante;
        schede.push_back(scheda);
    }
    return schede;
}

std::vector<SchedaSezione> SchedeSezione(int quante) {
    // 1, 2 concretes, 3 steel, 4 glued timber
    constexpr std::array<int, PassoSezioni> materiali{2, 1, 1, 1, 3, 3, 4, 4, 3, 1, 1, 1};
    std::vector<SchedaSezione> schede;
    for (int n = 0; n < quante; ++n) {
        const int materiale = materiali[static_cast<std::size_t>(n % PassoSezioni)];
        const bool altroCalcestruzzo = materiale <= 2 && n / PassoSezioni % 2 == 1;
        schede.push_back({altroCalcestruzzo ? 3 - materiale : materiale});
    }
    return schede;
}

} // namespace telva::generatore
