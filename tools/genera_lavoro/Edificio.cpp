#include "Edificio.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace telva::generatore {
namespace {

constexpr int kCm = 100; // the unit of length is a hundredth of it
constexpr int kAltezzaPorta = 210 * kCm;
constexpr int kLarghezzaTorre = 420 * kCm;
constexpr int kExtraCorsa = 130 * kCm; // lift tower above the ridge
constexpr int kSporto = 90 * kCm;      // eaves beyond the outer lines
constexpr int kSbalzo = 140 * kCm;

// A line of the roof, and the fine line below it (that of the outer beam for the eaves).
struct LineaFalda {
    int Y, J;
};
using Coppia = std::array<int, 2>;
using Pianta = Fila<Coppia>; // points in plan

// Puts every element of a building on its site. Indexes: i and j of fine lines along X and Y, a and
// b of main lines, k of levels, which are the storeys below them too.
class Muratore {
  public:
    explicit Muratore(const Maglia &maglia) : M(maglia), Piani(M.Quote.Quanti() - 1) {}

    Edificio Costruisci() {
        Cordoli();
        for (int k = 1; k <= Piani; ++k) {
            Pilastri(k);
            Travi(k);
            Solaio(k);
        }
        for (const auto &[a, b] : M.Nuclei) Nucleo(FX[a], FY[b], FX[a + 1], FY[b + 1]);
        Controventi();
        const int travi = E.Aste.Quanti();
        Secondarie();
        if (M.Dettagli) {
            Torre();
            Balconi();
            PareteDiTaglio();
        } else {
            E.Secondarie = E.Aste.StaccaDa(travi);
        }
        const Fila<LineaFalda> linee = LineeFalda();
        Puntoni(linee);
        Falde(linee);
        const int gusci = E.Gusci.Quanti();
        Tramezzi();
        E.Tramezzi = E.Gusci.StaccaDa(gusci);
        return E;
    }

  private:
    // The corner bay between the last X line and the first Y line is cut along its diagonal.
    int Smusso() const { return FX[FX.Quanti() - 2]; }
    bool Presente(int i, int j) const { return i <= Smusso() || j >= FY[1] || i - Smusso() <= j; }

    Posto Punto(int i, int j, int k) const {
        if (!Presente(i, j)) return {};
        return Posizione{LX[i].Quota, LY[j].Quota, M.Quote[k]};
    }
    // Where main lines cross.
    Posto Filo(int a, int b, int k) const { return Punto(FX[a], FY[b], k); }

    bool InNucleo(int i, int j) const {
        return std::ranges::count(M.Nuclei, std::array{LX[i].Campata, LY[j].Campata}) > 0;
    }

    // Ground beams: on the outline only under the small building.
    void Cordoli() {
        const auto corre = [this](int filo, const Fila<int> &fili) {
            return !M.Dettagli || filo == 0 || filo + 1 == fili.Quanti();
        };
        for (int b = 0; b < FY.Quanti(); ++b)
            for (int a = 0; a + 1 < FX.Quanti() && corre(b, FY); ++a)
                E.Metti(kCordolo, Filo(a, b, 0), Filo(a + 1, b, 0), {0, -1, b});
        for (int a = 0; a < FX.Quanti(); ++a)
            for (int b = 0; b + 1 < FY.Quanti() && corre(a, FX); ++b)
                E.Metti(kCordolo, Filo(a, b, 0), Filo(a, b + 1, 0), {0, a, -1});
        E.Metti(kCordolo, Punto(Smusso(), 0, 0), Punto(FX.back(), FY[1], 0), {0});
    }

    void Pilastri(int k) {
        for (int b = 0; b < FY.Quanti(); ++b)
            for (int a = 0; a < FX.Quanti(); ++a) {
                TipoAsta tipo = kPilastro;
                tipo.Orientamento += (a + b) % 2;
                if (M.Dettagli && k > 3) tipo.Sezione = kSezionePilastroLeggero;
                E.Metti(tipo, Filo(a, b, k - 1), Filo(a, b, k), {k, a, b});
            }
    }

    void Travi(int k) {
        for (const int j : FY)
            for (int i = 0; i + 1 < LX.Quanti(); ++i)
                E.Metti(kTraveX, Punto(i, j, k), Punto(i + 1, j, k),
                        {k, LX[i].Campata, LY[j].Filo});
        for (const int i : FX)
            for (int j = 0; j + 1 < LY.Quanti(); ++j)
                if (M.Dettagli && i == 0 && LY[j].Campata == 1)
                    TraveConPorta(k);
                else
                    E.Metti(kTraveY, Punto(i, j, k), Punto(i, j + 1, k),
                            {k, LX[i].Filo, LY[j].Campata});
        for (int j = 0, i = Smusso(); j < FY[1]; ++j, ++i)
            E.Metti(kSmusso, Punto(i, j, k), Punto(i + 1, j + 1, k), {k});
    }

    // The beam in front of the lift tower is split where the door jambs stand.
    void TraveConPorta(int k) {
        const Pianta porta = PortaTorre();
        for (int p = 0; p + 1 < porta.Quanti(); ++p)
            E.Metti(kTraveY, Su(porta[p], M.Quote[k]), Su(porta[p + 1], M.Quote[k]), {k, 0, 1});
    }

    void Solaio(int k) {
        const auto inMezzo = [](const Fila<Linea> &linee, int i) {
            return linee[i].Filo < 0 && linee[i + 1].Filo < 0;
        };
        for (int j = 0; j + 1 < LY.Quanti(); ++j)
            for (int i = 0; i + 1 < LX.Quanti(); ++i) {
                if (InNucleo(i, j)) continue;
                if (inMezzo(LX, i) && inMezzo(LY, j) && Presente(i + 1, j))
                    E.Cavedi.push_back(E.Gusci.Quanti());
                E.Metti(kSolai[static_cast<std::size_t>((k - 1) % 3)],
                        {Punto(i, j, k), Punto(i + 1, j, k), Punto(i + 1, j + 1, k),
                         Punto(i, j + 1, k)},
                        k);
            }
    }

    void Controventi() {
        const int x = FX.Quanti() - 1, y = FY.Quanti() - 1; // the last lines
        for (int k = 1; k <= Piani; ++k) {
            Croce({0, 0}, {1, 0}, k);
            Croce({1, y}, {2, y}, k);
            Croce({x, y / 2}, {x, y / 2 + 1}, k);
            if (!M.Dettagli) Croce({0, y / 2}, {0, y / 2 + 1}, k);
        }
    }

    // Two crossing diagonals between two columns.
    void Croce(const Coppia &p, const Coppia &q, int k) {
        E.Metti(kControvento, Filo(p[0], p[1], k - 1), Filo(q[0], q[1], k), {k});
        E.Metti(kControvento, Filo(q[0], q[1], k - 1), Filo(p[0], p[1], k), {k});
    }

    void Secondarie() {
        for (int j = 0; j < LY.Quanti(); ++j)
            for (int k = 1; k <= Piani && LY[j].Filo < 0; ++k)
                for (int i = 0; i + 1 < LX.Quanti(); ++i)
                    if (!InNucleo(i, j))
                        E.Metti(kSecondaria, Punto(i, j, k), Punto(i + 1, j, k), {k});
    }

    void Tramezzi() {
        for (int k = 2; k <= Piani; ++k)
            for (int b = 1; b + 1 < FY.Quanti(); ++b)
                for (int i = 0, j = FY[b]; i + 1 < LX.Quanti(); ++i)
                    if (!InNucleo(i, j) && !InNucleo(i, j - 1)) // no wall of a core there
                        Parete(kGuscioNascosto, Lato(i, j, i + 1, j), k);
    }

    // Of a level; the one above the last floor is the top of the lift tower.
    int Quota(int k) const {
        return k <= Piani ? M.Quote[k] : M.Quote.back() + M.AltezzaColmo + kExtraCorsa;
    }

    static Posizione Su(const Coppia &inPianta, int quota) {
        return {inPianta[0], inPianta[1], quota};
    }

    // The walls between the points, one after the other, below level k.
    void Parete(const TipoGuscio &tipo, const Pianta &pianta, int k) {
        const int z0 = Quota(k - 1), z1 = Quota(k);
        for (int p = 0; p + 1 < pianta.Quanti(); ++p) {
            const Coppia &da = pianta[p], &a = pianta[p + 1];
            E.Metti(tipo, {Su(da, z0), Su(a, z0), Su(a, z1), Su(da, z1)}, k);
        }
    }

    // Four points in plan: wall, door, wall. The triangles beside the door spare the outer edges,
    // shared with the walls around the corner, a node at the height of the lintel.
    void PareteConPorta(const Pianta &pianta, int k) {
        const int z0 = M.Quote[k - 1], z1 = M.Quote[k], zp = z0 + kAltezzaPorta;
        const auto nucleo = [&](const Fila<Coppia> &angoli) { // each a point and its height
            Fila<Posto> punti;
            for (const auto &[p, z] : angoli) punti.push_back(Su(pianta[p], z));
            E.Metti(kNucleo, punti, k);
        };
        for (const auto &[fuori, dentro] : {Coppia{0, 1}, Coppia{3, 2}}) {
            nucleo({{fuori, z0}, {dentro, z0}, {dentro, zp}});
            nucleo({{fuori, z0}, {dentro, zp}, {fuori, z1}});
            nucleo({{fuori, z1}, {dentro, zp}, {dentro, z1}});
        }
        nucleo({{1, zp}, {2, zp}, {2, z1}, {1, z1}});
    }

    // All points in plan between two corners of a straight side.
    Pianta Lato(int i0, int j0, int i1, int j1) const {
        Pianta punti;
        for (int i = i0; i <= i1; ++i)
            for (int j = j0; j <= j1; ++j) punti.push_back({LX[i].Quota, LY[j].Quota});
        return punti;
    }

    void Nucleo(int i0, int j0, int i1, int j1) {
        for (int k = 1; k <= Piani; ++k) {
            PareteConPorta(Lato(i0, j0, i1, j0), k);
            Parete(kNucleo, Lato(i0, j1, i1, j1), k);
            Parete(kNucleo, Lato(i0, j0, i0, j1), k);
            Parete(kNucleo, Lato(i1, j0, i1, j1), k);
        }
    }

    // Where the lift tower touches the building: wall, door, wall.
    Pianta PortaTorre() const {
        const int da = M.Y.Quota(1), a = M.Y.Quota(2), mezzo = (da + a) / 2;
        return {{0, da}, {0, mezzo - 60 * kCm}, {0, mezzo + 60 * kCm}, {0, a}};
    }

    void Torre() {
        const int y0 = M.Y.Quota(1), y1 = M.Y.Quota(2);
        const int lontano = -kLarghezzaTorre, mezzo = lontano / 2;
        const Pianta guscio{{0, y0},       {mezzo, y0}, {lontano, y0}, {lontano, (y0 + y1) / 2},
                            {lontano, y1}, {mezzo, y1}, {0, y1}};
        for (int k = 1; k <= Piani; ++k) {
            Parete(kNucleo, guscio, k);
            PareteConPorta(PortaTorre(), k);
        }
        const int k = Piani + 1, z = Quota(k);
        Parete(kNucleo, guscio, k);
        Parete(kNucleo, PortaTorre(), k);
        Piano(kCopertina, {lontano, y0, z}, {0, y1, z}, k);
    }

    // A horizontal panel between two opposite corners.
    void Piano(const TipoGuscio &tipo, const Posizione &p, const Posizione &q, int piano) {
        E.Metti(tipo, {p, Posizione{q.X, p.Y, p.Z}, q, Posizione{p.X, q.Y, p.Z}}, piano);
    }

    // The last floor has none: the eaves are there.
    void Balconi() {
        for (int k = 2; k < Piani; ++k) {
            const auto bordo = [this, k](int a, int y) {
                return Posizione{M.X.Quota(a), y, M.Quote[k]};
            };
            for (int a = 1; a <= 3; ++a) E.Metti(kMensola, bordo(a, 0), bordo(a, -kSbalzo), {k});
            for (int a = 1; a <= 2; ++a) {
                E.Metti(kSecondaria, bordo(a, -kSbalzo), bordo(a + 1, -kSbalzo), {k});
                Piano(kBalcone, bordo(a, -kSbalzo), bordo(a + 1, 0), k);
            }
        }
    }

    void PareteDiTaglio() {
        for (int k = 1; k <= Piani; ++k)
            Parete(kParete, Lato(FX[2], FY.back(), FX[3], FY.back()), k);
    }

    // Y of the ridge: the middle line, or half-way between the two middle ones.
    int Colmo() const {
        const int fili = FY.Quanti();
        return (M.Y.Quota((fili - 1) / 2) + M.Y.Quota(fili / 2)) / 2;
    }

    // Lines of the roof from front eaves to back eaves; the ridge gets its own when no main line
    // runs in the middle.
    Fila<LineaFalda> LineeFalda() const {
        Fila<LineaFalda> linee{{M.Y.Quota(0) - kSporto, 0}};
        for (int b = 0; b < FY.Quanti(); ++b) {
            if (2 * b == FY.Quanti()) linee.push_back({Colmo(), FY[b]});
            linee.push_back({M.Y.Quota(b), FY[b]});
        }
        linee.push_back({M.Y.Fine() + kSporto, FY.back()});
        return linee;
    }

    // Where a main line along Y crosses a line of the roof.
    Posto InFalda(int a, const LineaFalda &linea) const {
        if (!Presente(FX[a], linea.J)) return {};
        const std::int64_t colmo = Colmo();
        const std::int64_t gronda = linea.Y <= colmo ? M.Y.Quota(0) : M.Y.Fine();
        const std::int64_t salita = M.AltezzaColmo * (linea.Y - gronda) / (colmo - gronda);
        return Posizione{M.X.Quota(a), linea.Y, M.Quote.back() + static_cast<int>(salita)};
    }

    void Puntoni(const Fila<LineaFalda> &linee) {
        const int k = Piani + 1, ultimo = FX.Quanti() - 1;
        for (int a = 0; a <= ultimo; ++a) {
            for (int l = 0; l + 1 < linee.Quanti(); ++l)
                E.Metti(kPuntone, InFalda(a, linee[l]), InFalda(a, linee[l + 1]), {k, a, -1});
            for (int b = 1; b + 1 < FY.Quanti(); ++b)
                E.Metti(kMonaco, Filo(a, b, Piani), InFalda(a, {M.Y.Quota(b), FY[b]}), {k});
        }
        // the hip over the chamfer
        E.Metti(kPuntone, InFalda(ultimo - 1, linee[1]), InFalda(ultimo, linee[2]), {k});
    }

    // Purlins, and panels between them. The outer lines have the beams of the last floor instead.
    void Falde(const Fila<LineaFalda> &linee) {
        const int ultima = linee.Quanti() - 1, piano = Piani + 1;
        for (int l = 0; l <= ultima; ++l)
            for (int a = 0; a + 1 < FX.Quanti(); ++a) {
                const Posto p = InFalda(a, linee[l]), q = InFalda(a + 1, linee[l]);
                if (l != 1 && l != ultima - 1) E.Metti(kArcareccio, p, q, {piano, -1, l});
                if (l == ultima) continue;
                const bool vetro = (a + l) % 4 == 3 && l > 0 && l < ultima - 1;
                const Posto s = InFalda(a, linee[l + 1]), r = InFalda(a + 1, linee[l + 1]);
                E.Metti(vetro ? kLucernario : kFalda, {p, q, r, s}, piano);
            }
    }

    const Maglia &M;
    Edificio E;
    const Fila<Linea> &LX = M.X.Linee, &LY = M.Y.Linee;
    const Fila<int> &FX = M.X.Fili, &FY = M.Y.Fili;
    int Piani;
};

} // namespace

Asse::Asse(const Fila<int> &campate, const Fila<int> &campi, int inizio) {
    for (int c = 0; c < campate.Quanti(); ++c) {
        Fili.push_back(Linee.Quanti());
        for (int s = 0; s < campi[c]; ++s)
            Linee.push_back({inizio + campate[c] * s / campi[c], s == 0 ? c : -1, c});
        inizio += campate[c];
    }
    Fili.push_back(Linee.Quanti());
    Linee.push_back({inizio, campate.Quanti(), campate.Quanti() - 1});
}

Maglia MagliaCampione() {
    return {.X{{570 * kCm, 480 * kCm, 480 * kCm, 570 * kCm}, {1, 1, 1, 2}},
            .Y{{510 * kCm, 420 * kCm, 510 * kCm}, {2, 1, 1}},
            .Quote = {0, 420 * kCm, 760 * kCm, 1100 * kCm, 1440 * kCm, 1780 * kCm},
            .AltezzaColmo = 250 * kCm,
            .Dettagli = true};
}

Maglia MagliaGrande(const Dimensioni &dimensioni, Casuale &caso) {
    const auto centrato = [&caso](int quante) {
        Fila<int> campate;
        for (int n = 0; n < quante; ++n) campate.push_back((390 + 30 * caso.Intero(0, 3)) * kCm);
        const Fila<int> campi(campate.size(), 3);
        return Asse(campate, campi, -std::accumulate(campate.begin(), campate.end(), 0) / 2);
    };
    const auto &[x, y, piani] = dimensioni;
    Maglia m{.X = centrato(x), .Y = centrato(y)};
    for (int k = 0; k <= piani; ++k) m.Quote.push_back(k * 300 * kCm);
    for (int a = 2; a + 1 < x; a += 5)
        for (const int b : y < 8 ? Fila<int>{y / 2} : Fila<int>{y / 4, 3 * y / 4})
            m.Nuclei.push_back({a, b});
    m.AltezzaColmo = (m.Y.Linee.back().Quota - m.Y.Quota(0)) / 8;
    return m;
}

Edificio Costruisci(const Maglia &maglia) { return Muratore(maglia).Costruisci(); }

} // namespace telva::generatore
