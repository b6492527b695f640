#include "Edificio.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace telva::generatore {
namespace {

constexpr int Cm = 100; // unit of length: hundredths of a cm
constexpr int AltezzaPorta = 210 * Cm;
constexpr int LarghezzaTorre = 420 * Cm;
constexpr int ExtraCorsa = 130 * Cm; // lift tower above the ridge

// A fine grid line, through the corners of the floor panels.
struct Linea {
    int Quota, Filo, Campata; // Filo: number of the main line, -1 between two of them
};
struct LineaFalda {
    int Y, J, Filo; // J: fine line below (that of the outer beam for the eaves)
    bool Sporto;
};
using Pianta = Fila<std::array<int, 2>>;

Fila<int> Somma(const Fila<int> &passi, int inizio) {
    Fila<int> linee{inizio};
    for (const int passo : passi) linee.push_back(linee.back() + passo);
    return linee;
}

Fila<Linea> Suddividi(const Fila<int> &fili, const Fila<int> &sudd) {
    Fila<Linea> linee;
    for (int c = 0; c < sudd.Quanti(); ++c)
        for (int s = 0; s < sudd[c]; ++s)
            linee.push_back({fili[c] + (fili[c + 1] - fili[c]) * s / sudd[c], s == 0 ? c : -1, c});
    linee.push_back({fili.back(), sudd.Quanti(), sudd.Quanti() - 1});
    return linee;
}

Fila<int> Principali(const Fila<Linea> &linee) {
    Fila<int> fili;
    for (int i = 0; i < linee.Quanti(); ++i)
        if (linee[i].Filo >= 0) fili.push_back(i);
    return fili;
}

// Puts every element of a building on its site. Indexes: i and j of fine lines along X and Y, a and
// b of main lines, k of levels, which are the storeys below them too.
class Muratore {
  public:
    explicit Muratore(const Maglia &maglia)
        : M(maglia), LX(Suddividi(M.FiliX, M.SuddX)), LY(Suddividi(M.FiliY, M.SuddY)),
          FX(Principali(LX)), FY(Principali(LY)), Piani(M.Quote.Quanti() - 1) {}

    Edificio Costruisci() {
        Cordoli();
        for (int k = 1; k <= Piani; ++k) {
            Pilastri(k);
            Travi(k);
            Solaio(k);
        }
        for (const auto &nucleo : M.Nuclei) Nucleo(nucleo[0], nucleo[1]);
        Controventi();
        Fila<AstaCandidata> aggiungibili = Secondarie();
        if (M.Dettagli) {
            for (const AstaCandidata &a : aggiungibili) C.Asta(a.Tipo, a.I, a.J, a.Dove);
            aggiungibili.clear();
            Torre();
            Balconi();
            PareteDiTaglio();
        }
        const Fila<LineaFalda> linee = LineeFalda();
        Puntoni(linee);
        Arcarecci(linee);
        Manto(linee);
        aggiungibili.Aggiungi(CrociInterne());
        return {C, aggiungibili, Tramezzi()};
    }

  private:
    Posizione Incrocio(int i, int j, int k) const { return {LX[i].Quota, LY[j].Quota, M.Quote[k]}; }

    // The corner bay between the last X line and the first Y line is cut along its diagonal.
    int Smusso() const { return FX[FX.Quanti() - 2]; }
    bool Presente(int i, int j) const { return i <= Smusso() || j >= FY[1] || i - Smusso() <= j; }

    bool InNucleo(int i, int j) const {
        const std::array<int, 2> campo{LX[i].Campata, LY[j].Campata};
        return std::find(M.Nuclei.begin(), M.Nuclei.end(), campo) != M.Nuclei.end();
    }

    void Cordolo(int i0, int j0, int i1, int j1, Luogo dove) {
        if (Presente(i0, j0) && Presente(i1, j1))
            C.Asta(TipoAsta::Cordolo, Incrocio(i0, j0, 0), Incrocio(i1, j1, 0), dove);
    }

    // Ground beams: on the outline only under the small building.
    void Cordoli() {
        const auto salta = [this](int filo, const Fila<int> &fili) {
            return M.Dettagli && filo > 0 && filo + 1 < fili.Quanti();
        };
        for (int b = 0; b < FY.Quanti(); ++b)
            for (int a = 0; a + 1 < FX.Quanti() && !salta(b, FY); ++a)
                Cordolo(FX[a], FY[b], FX[a + 1], FY[b], {0, -1, b});
        for (int a = 0; a < FX.Quanti(); ++a)
            for (int b = 0; b + 1 < FY.Quanti() && !salta(a, FX); ++b)
                Cordolo(FX[a], FY[b], FX[a], FY[b + 1], {0, a, -1});
        Cordolo(Smusso(), FY[0], FX.back(), FY[1], {0});
    }

    void Pilastri(int k) {
        for (int b = 0; b < FY.Quanti(); ++b)
            for (int a = 0; a < FX.Quanti(); ++a)
                if (Presente(FX[a], FY[b]))
                    C.Asta(TipoAsta::Pilastro, Incrocio(FX[a], FY[b], k - 1),
                           Incrocio(FX[a], FY[b], k), {k, a, b});
    }

    void Travi(int k) {
        for (const int j : FY)
            for (int i = 0; i + 1 < LX.Quanti(); ++i)
                if (Presente(i, j) && Presente(i + 1, j))
                    C.Asta(TipoAsta::TraveX, Incrocio(i, j, k), Incrocio(i + 1, j, k),
                           {k, LX[i].Campata, LY[j].Filo});
        for (const int i : FX)
            for (int j = 0; j + 1 < LY.Quanti(); ++j)
                if (M.Dettagli && i == 0 && LY[j].Campata == 1)
                    TraveYConPorta(j, k);
                else if (Presente(i, j) && Presente(i, j + 1))
                    C.Asta(TipoAsta::TraveY, Incrocio(i, j, k), Incrocio(i, j + 1, k),
                           {k, LX[i].Filo, LY[j].Campata});
        for (int t = 0; t < FY[1]; ++t)
            C.Asta(TipoAsta::Smusso, Incrocio(Smusso() + t, t, k),
                   Incrocio(Smusso() + t + 1, t + 1, k), {k});
    }

    // The beam in front of the lift tower is split where the door jambs stand.
    void TraveYConPorta(int j, int k) {
        const Fila<int> y = PortaTorre();
        for (int t = 0; t + 1 < y.Quanti(); ++t)
            C.Asta(TipoAsta::TraveY, {LX[0].Quota, y[t], M.Quote[k]},
                   {LX[0].Quota, y[t + 1], M.Quote[k]}, {k, 0, LY[j].Campata});
    }

    void Solaio(int k) {
        for (int j = 0; j + 1 < LY.Quanti(); ++j)
            for (int i = 0; i + 1 < LX.Quanti(); ++i)
                if (!InNucleo(i, j)) CampoSolaio(i, j, k);
    }

    void CampoSolaio(int i, int j, int k) {
        Fila<Posizione> angoli;
        for (const auto &[x, y] : Giro(i, j))
            if (Presente(x, y)) angoli.push_back(Incrocio(x, y, k));
        if (angoli.size() < 3) return;
        const bool centrale = i > 0 && j > 0 && LX[i].Filo < 0 && LX[i + 1].Filo < 0 &&
                              LY[j].Filo < 0 && LY[j + 1].Filo < 0 && angoli.size() == 4;
        C.Guscio(TipoGuscio::Solaio, angoli, {k, LX[i].Campata, LY[j].Campata}, centrale);
    }

    // The corners of a panel in order around its edge.
    static Pianta Giro(int i, int j) { return {{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}; }

    void Controventi() {
        const int ultimaX = FX.Quanti() - 1, ultimaY = FY.Quanti() - 1;
        for (int k = 1; k <= Piani; ++k) {
            Croce(0, 0, true, k);
            Croce(1, ultimaY, true, k);
            Croce(ultimaX, ultimaY / 2, false, k);
            if (!M.Dettagli) Croce(0, ultimaY / 2, false, k);
        }
    }

    // Two crossing diagonals in the bay that starts at the given main lines, below level k.
    void Croce(int a, int b, bool lungoX, int k) {
        const int i0 = FX[a], i1 = lungoX ? FX[a + 1] : i0;
        const int j0 = FY[b], j1 = lungoX ? j0 : FY[b + 1];
        if (!Presente(i0, j0) || !Presente(i1, j1)) return;
        const Luogo dove = lungoX ? Luogo{k, -1, b} : Luogo{k, a, -1};
        C.Asta(TipoAsta::Controvento, Incrocio(i0, j0, k - 1), Incrocio(i1, j1, k), dove);
        C.Asta(TipoAsta::Controvento, Incrocio(i1, j1, k - 1), Incrocio(i0, j0, k), dove);
    }

    Fila<AstaCandidata> Secondarie() const {
        Fila<AstaCandidata> tutte;
        for (int j = 0; j < LY.Quanti(); ++j)
            for (int k = 1; k <= Piani && LY[j].Filo < 0; ++k)
                for (int i = 0; i + 1 < LX.Quanti(); ++i)
                    if (Presente(i, j) && Presente(i + 1, j) && !InNucleo(i, j))
                        tutte.push_back({TipoAsta::Secondaria,
                                         Incrocio(i, j, k),
                                         Incrocio(i + 1, j, k),
                                         {k, LX[i].Campata, LY[j].Campata}});
        return tutte;
    }

    Fila<AstaCandidata> CrociInterne() const {
        Fila<AstaCandidata> tutte;
        for (int b = 1; b + 1 < FY.Quanti(); ++b)
            for (int k = 1; k <= Piani; ++k)
                for (int a = 0; a + 1 < FX.Quanti(); ++a)
                    for (const auto &[da, verso] : Pianta{{a, a + 1}, {a + 1, a}})
                        tutte.push_back({TipoAsta::Controvento,
                                         Incrocio(FX[da], FY[b], k - 1),
                                         Incrocio(FX[verso], FY[b], k),
                                         {k, -1, b}});
        return tutte;
    }

    Fila<Fila<Posizione>> Tramezzi() const {
        Fila<Fila<Posizione>> tutti;
        for (int k = 1; k < Piani; ++k)
            for (int b = 1; b + 1 < FY.Quanti(); ++b)
                for (int i = 0; i + 1 < LX.Quanti(); ++i)
                    if (!InNucleo(i, FY[b]) && !InNucleo(i, FY[b] - 1)) // no wall of a core there
                        tutti.push_back({Incrocio(i, FY[b], k), Incrocio(i + 1, FY[b], k),
                                         Incrocio(i + 1, FY[b], k + 1), Incrocio(i, FY[b], k + 1)});
        return tutti;
    }

    void Parete(TipoGuscio tipo, const Pianta &pianta, int z0, int z1, int piano) {
        for (int p = 0; p + 1 < pianta.Quanti(); ++p) {
            const auto [xa, ya] = pianta[p];
            const auto [xb, yb] = pianta[p + 1];
            C.Guscio(tipo, {{xa, ya, z0}, {xb, yb, z0}, {xb, yb, z1}, {xa, ya, z1}}, {piano});
        }
    }

    // Four points in plan: wall, door, wall. The triangles beside the door spare the outer edges,
    // shared with the walls around the corner, a node at the height of the lintel.
    void PareteConPorta(const Pianta &pianta, int k) {
        const int z0 = M.Quote[k - 1], z1 = M.Quote[k], zp = z0 + AltezzaPorta;
        const auto nucleo = [&](std::initializer_list<std::array<int, 2>> angoli) {
            Fila<Posizione> punti;
            for (const auto &[p, z] : angoli) punti.push_back({pianta[p][0], pianta[p][1], z});
            C.Guscio(TipoGuscio::Nucleo, punti, {k});
        };
        for (const auto &[fuori, dentro] : Pianta{{0, 1}, {3, 2}}) {
            nucleo({{fuori, z0}, {dentro, z0}, {dentro, zp}});
            nucleo({{fuori, z0}, {dentro, zp}, {fuori, z1}});
            nucleo({{fuori, z1}, {dentro, zp}, {dentro, z1}});
        }
        nucleo({{1, zp}, {2, zp}, {2, z1}, {1, z1}});
    }

    void Nucleo(int campataX, int campataY) {
        const int i0 = FX[campataX], i1 = FX[campataX + 1];
        const int j0 = FY[campataY], j1 = FY[campataY + 1];
        Pianta davanti, dietro, sinistra, destra;
        for (int i = i0; i <= i1; ++i) {
            davanti.push_back({LX[i].Quota, LY[j0].Quota});
            dietro.push_back({LX[i].Quota, LY[j1].Quota});
        }
        for (int j = j0; j <= j1; ++j) {
            sinistra.push_back({LX[i0].Quota, LY[j].Quota});
            destra.push_back({LX[i1].Quota, LY[j].Quota});
        }
        for (int k = 1; k <= Piani; ++k) {
            PareteConPorta(davanti, k);
            for (const Pianta *lato : {&dietro, &sinistra, &destra})
                Parete(TipoGuscio::Nucleo, *lato, M.Quote[k - 1], M.Quote[k], k);
        }
    }

    Fila<int> PortaTorre() const {
        const int mezzo = (M.FiliY[1] + M.FiliY[2]) / 2;
        return {M.FiliY[1], mezzo - 60 * Cm, mezzo + 60 * Cm, M.FiliY[2]};
    }

    void Torre() {
        const Fila<int> y = PortaTorre();
        const int lontano = -LarghezzaTorre, mezzo = lontano / 2;
        const Pianta porta{{0, y[0]}, {0, y[1]}, {0, y[2]}, {0, y[3]}};
        const Pianta guscio{
            {0, y[0]},       {mezzo, y[0]}, {lontano, y[0]}, {lontano, (y[0] + y[3]) / 2},
            {lontano, y[3]}, {mezzo, y[3]}, {0, y[3]}};
        for (int k = 1; k <= Piani; ++k) {
            Parete(TipoGuscio::Nucleo, guscio, M.Quote[k - 1], M.Quote[k], k);
            PareteConPorta(porta, k);
        }
        const int tetto = M.Quote.back() + M.AltezzaColmo + ExtraCorsa;
        Parete(TipoGuscio::Nucleo, guscio, M.Quote.back(), tetto, Piani + 1);
        Parete(TipoGuscio::Nucleo, porta, M.Quote.back(), tetto, Piani + 1);
        C.Guscio(
            TipoGuscio::Copertina,
            {{lontano, y[0], tetto}, {0, y[0], tetto}, {0, y[3], tetto}, {lontano, y[3], tetto}},
            {Piani + 1});
    }

    // The last floor has none: the eaves are there.
    void Balconi() {
        const int profondo = -140 * Cm;
        for (int k = 2; k < Piani; ++k) {
            const int z = M.Quote[k];
            for (int a = 1; a <= 3; ++a)
                C.Asta(TipoAsta::Mensola, {M.FiliX[a], 0, z}, {M.FiliX[a], profondo, z}, {k});
            for (int a = 1; a <= 2; ++a) {
                const int x0 = M.FiliX[a], x1 = M.FiliX[a + 1];
                C.Asta(TipoAsta::Secondaria, {x0, profondo, z}, {x1, profondo, z}, {k});
                C.Guscio(TipoGuscio::Balcone,
                         {{x0, profondo, z}, {x1, profondo, z}, {x1, 0, z}, {x0, 0, z}}, {k});
            }
        }
    }

    void PareteDiTaglio() {
        const Pianta pianta{{M.FiliX[2], M.FiliY.back()}, {M.FiliX[3], M.FiliY.back()}};
        for (int k = 1; k <= Piani; ++k)
            Parete(TipoGuscio::Parete, pianta, M.Quote[k - 1], M.Quote[k], k);
    }

    // Lines of the roof from front eaves to back eaves; the ridge gets its own when no main line
    // runs in the middle.
    Fila<LineaFalda> LineeFalda() const {
        Fila<LineaFalda> linee{{M.FiliY.front() - M.Sporto, 0, -1, true}};
        for (int b = 0; b < FY.Quanti(); ++b) {
            linee.push_back({M.FiliY[b], FY[b], b, false});
            if (FY.Quanti() % 2 == 0 && b + 1 == FY.Quanti() / 2)
                linee.push_back({(M.FiliY[b] + M.FiliY[b + 1]) / 2, FY[b + 1], -1, false});
        }
        linee.push_back({M.FiliY.back() + M.Sporto, FY.back(), -1, true});
        return linee;
    }

    Posizione InFalda(int i, const LineaFalda &linea) const {
        const int meta = M.FiliY.Quanti() / 2;
        const bool traDue = M.FiliY.Quanti() % 2 == 0;
        const std::int64_t colmo = traDue ? (M.FiliY[meta - 1] + M.FiliY[meta]) / 2 : M.FiliY[meta];
        const std::int64_t gronda = linea.Y <= colmo ? M.FiliY.front() : M.FiliY.back();
        const std::int64_t salita = M.AltezzaColmo * (linea.Y - gronda) / (colmo - gronda);
        return {LX[i].Quota, linea.Y, M.Quote.back() + static_cast<int>(salita)};
    }

    void Puntoni(const Fila<LineaFalda> &linee) {
        for (int a = 0; a < FX.Quanti(); ++a) {
            const int i = FX[a];
            for (int l = 0; l + 1 < linee.Quanti(); ++l)
                if (Presente(i, linee[l].J) && Presente(i, linee[l + 1].J))
                    C.Asta(TipoAsta::Puntone, InFalda(i, linee[l]), InFalda(i, linee[l + 1]),
                           {Piani + 1, a, -1});
            for (int b = 1; b + 1 < FY.Quanti(); ++b)
                C.Asta(TipoAsta::Monaco, Incrocio(i, FY[b], Piani),
                       InFalda(i, {M.FiliY[b], FY[b], b, false}), {Piani + 1, a, b});
        }
        C.Asta(TipoAsta::Puntone, InFalda(Smusso(), linee[1]), InFalda(FX.back(), linee[2]),
               {Piani + 1}); // hip over the chamfer
    }

    // The outer lines have the beams of the last floor: no purlin there.
    void Arcarecci(const Fila<LineaFalda> &linee) {
        for (int l = 0; l < linee.Quanti(); ++l)
            for (int a = 0; a + 1 < FX.Quanti() && l != 1 && l + 2 != linee.Quanti(); ++a)
                if (Presente(FX[a], linee[l].J) && Presente(FX[a + 1], linee[l].J))
                    C.Asta(TipoAsta::Arcareccio, InFalda(FX[a], linee[l]),
                           InFalda(FX[a + 1], linee[l]), {Piani + 1, -1, l});
    }

    void Manto(const Fila<LineaFalda> &linee) {
        for (int l = 0; l + 1 < linee.Quanti(); ++l)
            for (int a = 0; a + 1 < FX.Quanti(); ++a) {
                Fila<Posizione> angoli;
                for (const auto &[x, y] : Giro(a, l))
                    if (Presente(FX[x], linee[y].J)) angoli.push_back(InFalda(FX[x], linee[y]));
                if (angoli.size() < 3) continue;
                const bool vetro = (a + l) % 4 == 3 && !linee[l].Sporto && !linee[l + 1].Sporto;
                C.Guscio(vetro ? TipoGuscio::Lucernario : TipoGuscio::Falda, angoli,
                         {Piani + 1, a, l});
            }
    }

    const Maglia &M;
    Cantiere C;
    Fila<Linea> LX, LY;
    Fila<int> FX, FY; // fine line of each main line
    int Piani;
};

} // namespace

Maglia MagliaCampione(Casuale &caso) {
    const int estremo = (540 + 30 * caso.Intero(-1, 1)) * Cm;
    const int interno = (480 + 30 * caso.Intero(-1, 1)) * Cm;
    const int fronte = (540 + 30 * caso.Intero(-1, 1)) * Cm;
    const int interpiano = (310 + 10 * caso.Intero(0, 3)) * Cm;
    return {.FiliX = Somma({estremo, interno, interno, estremo}, 0),
            .FiliY = Somma({fronte, 420 * Cm, fronte}, 0),
            .SuddX = {1, 1, 1, 2},
            .SuddY = {2, 1, 1},
            .Quote = Somma({420 * Cm, interpiano, interpiano, interpiano, interpiano}, 0),
            .AltezzaColmo = 250 * Cm,
            .Sporto = 90 * Cm,
            .Dettagli = true};
}

Maglia MagliaGrande(int campateX, int campateY, int piani, Casuale &caso) {
    const auto centrati = [&caso](int quanti) {
        Fila<int> passi;
        for (int n = 0; n < quanti; ++n) passi.push_back((390 + 30 * caso.Intero(0, 3)) * Cm);
        return Somma(passi, -std::accumulate(passi.begin(), passi.end(), 0) / 2);
    };
    Maglia m;
    m.FiliX = centrati(campateX);
    m.FiliY = centrati(campateY);
    m.SuddX.assign(static_cast<std::size_t>(campateX), 3);
    m.SuddY.assign(static_cast<std::size_t>(campateY), 3);
    for (int k = 0; k <= piani; ++k) m.Quote.push_back(k * 300 * Cm);
    for (int x = std::min(2, campateX / 2); x + 1 < campateX; x += 5) {
        if (campateY < 8) {
            m.Nuclei.push_back({x, campateY / 2});
        } else {
            m.Nuclei.push_back({x, campateY / 4});
            m.Nuclei.push_back({x, 3 * campateY / 4});
        }
    }
    m.AltezzaColmo = (m.FiliY.back() - m.FiliY.front()) / 8;
    m.Sporto = 90 * Cm;
    return m;
}

Edificio Costruisci(const Maglia &maglia) { return Muratore(maglia).Costruisci(); }

} // namespace telva::generatore
