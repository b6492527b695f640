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
    explicit Muratore(const Maglia &maglia) : m_(maglia), piani_(m_.Quote.Quanti() - 1) {}

    Edificio Costruisci() {
        Cordoli();
        for (int k = 1; k <= piani_; ++k) {
            Pilastri(k);
            Travi(k);
            Solaio(k);
        }
        for (const auto &[a, b] : m_.Nuclei) Nucleo(fx_[a], fy_[b], fx_[a + 1], fy_[b + 1]);
        Controventi();
        const int travi = e_.Aste.Quanti();
        Secondarie();
        if (m_.Dettagli) {
            Torre();
            Balconi();
            PareteDiTaglio();
        } else {
            e_.Secondarie = e_.Aste.StaccaDa(travi);
        }
        const Fila<LineaFalda> linee = LineeFalda();
        Puntoni(linee);
        Falde(linee);
        const int gusci = e_.Gusci.Quanti();
        Tramezzi();
        e_.Tramezzi = e_.Gusci.StaccaDa(gusci);
        return e_;
    }

  private:
    // The corner bay between the last X line and the first Y line is cut along its diagonal.
    int Smusso() const { return fx_[fx_.Quanti() - 2]; }
    bool Presente(int i, int j) const { return i <= Smusso() || j >= fy_[1] || i - Smusso() <= j; }

    Posto Punto(int i, int j, int k) const {
        if (!Presente(i, j)) return {};
        return Posizione{lx_[i].Quota, ly_[j].Quota, m_.Quote[k]};
    }
    // Where main lines cross.
    Posto Filo(int a, int b, int k) const { return Punto(fx_[a], fy_[b], k); }

    bool InNucleo(int i, int j) const {
        return std::ranges::count(m_.Nuclei, std::array{lx_[i].Campata, ly_[j].Campata}) > 0;
    }

    // Ground beams: on the outline only under the small building.
    void Cordoli() {
        const auto corre = [this](int filo, const Fila<int> &fili) {
            return !m_.Dettagli || filo == 0 || filo + 1 == fili.Quanti();
        };
        for (int b = 0; b < fy_.Quanti(); ++b)
            for (int a = 0; a + 1 < fx_.Quanti() && corre(b, fy_); ++a)
                e_.Metti(kCordolo, Filo(a, b, 0), Filo(a + 1, b, 0), {0, -1, b});
        for (int a = 0; a < fx_.Quanti(); ++a)
            for (int b = 0; b + 1 < fy_.Quanti() && corre(a, fx_); ++b)
                e_.Metti(kCordolo, Filo(a, b, 0), Filo(a, b + 1, 0), {0, a, -1});
        e_.Metti(kCordolo, Punto(Smusso(), 0, 0), Punto(fx_.back(), fy_[1], 0), {0});
    }

    void Pilastri(int k) {
        for (int b = 0; b < fy_.Quanti(); ++b)
            for (int a = 0; a < fx_.Quanti(); ++a) {
                TipoAsta tipo = kPilastro;
                tipo.Orientamento += (a + b) % 2;
                if (m_.Dettagli && k > 3) tipo.Sezione = kSezionePilastroLeggero;
                e_.Metti(tipo, Filo(a, b, k - 1), Filo(a, b, k), {k, a, b});
            }
    }

    void Travi(int k) {
        for (const int j : fy_)
            for (int i = 0; i + 1 < lx_.Quanti(); ++i)
                e_.Metti(kTraveX, Punto(i, j, k), Punto(i + 1, j, k),
                         {k, lx_[i].Campata, ly_[j].Filo});
        for (const int i : fx_)
            for (int j = 0; j + 1 < ly_.Quanti(); ++j)
                if (m_.Dettagli && i == 0 && ly_[j].Campata == 1)
                    TraveConPorta(k);
                else
                    e_.Metti(kTraveY, Punto(i, j, k), Punto(i, j + 1, k),
                             {k, lx_[i].Filo, ly_[j].Campata});
        for (int j = 0, i = Smusso(); j < fy_[1]; ++j, ++i)
            e_.Metti(kSmusso, Punto(i, j, k), Punto(i + 1, j + 1, k), {k});
    }

    // The beam in front of the lift tower is split where the door jambs stand.
    void TraveConPorta(int k) {
        const Pianta porta = PortaTorre();
        for (int p = 0; p + 1 < porta.Quanti(); ++p)
            e_.Metti(kTraveY, Su(porta[p], m_.Quote[k]), Su(porta[p + 1], m_.Quote[k]), {k, 0, 1});
    }

    void Solaio(int k) {
        const auto inMezzo = [](const Fila<Linea> &linee, int i) {
            return linee[i].Filo < 0 && linee[i + 1].Filo < 0;
        };
        for (int j = 0; j + 1 < ly_.Quanti(); ++j)
            for (int i = 0; i + 1 < lx_.Quanti(); ++i) {
                if (InNucleo(i, j)) continue;
                if (inMezzo(lx_, i) && inMezzo(ly_, j) && Presente(i + 1, j))
                    e_.Cavedi.push_back(e_.Gusci.Quanti());
                e_.Metti(kSolai[static_cast<std::size_t>((k - 1) % 3)],
                         {Punto(i, j, k), Punto(i + 1, j, k), Punto(i + 1, j + 1, k),
                          Punto(i, j + 1, k)},
                         k);
            }
    }

    void Controventi() {
        const int x = fx_.Quanti() - 1, y = fy_.Quanti() - 1; // the last lines
        for (int k = 1; k <= piani_; ++k) {
            Croce({0, 0}, {1, 0}, k);
            Croce({1, y}, {2, y}, k);
            Croce({x, y / 2}, {x, y / 2 + 1}, k);
            if (!m_.Dettagli) Croce({0, y / 2}, {0, y / 2 + 1}, k);
        }
    }

    // Two crossing diagonals between two columns.
    void Croce(const Coppia &p, const Coppia &q, int k) {
        e_.Metti(kControvento, Filo(p[0], p[1], k - 1), Filo(q[0], q[1], k), {k});
        e_.Metti(kControvento, Filo(q[0], q[1], k - 1), Filo(p[0], p[1], k), {k});
    }

    void Secondarie() {
        for (int j = 0; j < ly_.Quanti(); ++j)
            for (int k = 1; k <= piani_ && ly_[j].Filo < 0; ++k)
                for (int i = 0; i + 1 < lx_.Quanti(); ++i)
                    if (!InNucleo(i, j))
                        e_.Metti(kSecondaria, Punto(i, j, k), Punto(i + 1, j, k), {k});
    }

    void Tramezzi() {
        for (int k = 2; k <= piani_; ++k)
            for (int b = 1; b + 1 < fy_.Quanti(); ++b)
                for (int i = 0, j = fy_[b]; i + 1 < lx_.Quanti(); ++i)
                    if (!InNucleo(i, j) && !InNucleo(i, j - 1)) // no wall of a core there
                        Parete(kGuscioNascosto, Lato(i, j, i + 1, j), k);
    }

    // Of a level; the one above the last floor is the top of the lift tower.
    int Quota(int k) const {
        return k <= piani_ ? m_.Quote[k] : m_.Quote.back() + m_.AltezzaColmo + kExtraCorsa;
    }

    static Posizione Su(const Coppia &inPianta, int quota) {
        return {inPianta[0], inPianta[1], quota};
    }

    // The walls between the points, one after the other, below level k.
    void Parete(const TipoGuscio &tipo, const Pianta &pianta, int k) {
        const int z0 = Quota(k - 1), z1 = Quota(k);
        for (int p = 0; p + 1 < pianta.Quanti(); ++p) {
            const Coppia &da = pianta[p], &a = pianta[p + 1];
            e_.Metti(tipo, {Su(da, z0), Su(a, z0), Su(a, z1), Su(da, z1)}, k);
        }
    }

    // Four points in plan: wall, door, wall. The triangles beside the door spare the outer edges,
    // shared with the walls around the corner, a node at the height of the lintel.
    void PareteConPorta(const Pianta &pianta, int k) {
        const int z0 = m_.Quote[k - 1], z1 = m_.Quote[k], zp = z0 + kAltezzaPorta;
        const auto nucleo = [&](const Fila<Coppia> &angoli) { // each a point and its height
            Fila<Posto> punti;
            for (const auto &[p, z] : angoli) punti.push_back(Su(pianta[p], z));
            e_.Metti(kNucleo, punti, k);
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
            for (int j = j0; j <= j1; ++j) punti.push_back({lx_[i].Quota, ly_[j].Quota});
        return punti;
    }

    void Nucleo(int i0, int j0, int i1, int j1) {
        for (int k = 1; k <= piani_; ++k) {
            PareteConPorta(Lato(i0, j0, i1, j0), k);
            Parete(kNucleo, Lato(i0, j1, i1, j1), k);
            Parete(kNucleo, Lato(i0, j0, i0, j1), k);
            Parete(kNucleo, Lato(i1, j0, i1, j1), k);
        }
    }

    // Where the lift tower touches the building: wall, door, wall.
    Pianta PortaTorre() const {
        const int da = m_.Y.Quota(1), a = m_.Y.Quota(2), mezzo = (da + a) / 2;
        return {{0, da}, {0, mezzo - 60 * kCm}, {0, mezzo + 60 * kCm}, {0, a}};
    }

    void Torre() {
        const int y0 = m_.Y.Quota(1), y1 = m_.Y.Quota(2);
        const int lontano = -kLarghezzaTorre, mezzo = lontano / 2;
        const Pianta guscio{{0, y0},       {mezzo, y0}, {lontano, y0}, {lontano, (y0 + y1) / 2},
                            {lontano, y1}, {mezzo, y1}, {0, y1}};
        for (int k = 1; k <= piani_; ++k) {
            Parete(kNucleo, guscio, k);
            PareteConPorta(PortaTorre(), k);
        }
        const int k = piani_ + 1, z = Quota(k);
        Parete(kNucleo, guscio, k);
        Parete(kNucleo, PortaTorre(), k);
        Piano(kCopertina, {lontano, y0, z}, {0, y1, z}, k);
    }

    // A horizontal panel between two opposite corners.
    void Piano(const TipoGuscio &tipo, const Posizione &p, const Posizione &q, int piano) {
        e_.Metti(tipo, {p, Posizione{q.X, p.Y, p.Z}, q, Posizione{p.X, q.Y, p.Z}}, piano);
    }

    // The last floor has none: the eaves are there.
    void Balconi() {
        for (int k = 2; k < piani_; ++k) {
            const auto bordo = [this, k](int a, int y) {
                return Posizione{m_.X.Quota(a), y, m_.Quote[k]};
            };
            for (int a = 1; a <= 3; ++a) e_.Metti(kMensola, bordo(a, 0), bordo(a, -kSbalzo), {k});
            for (int a = 1; a <= 2; ++a) {
                e_.Metti(kSecondaria, bordo(a, -kSbalzo), bordo(a + 1, -kSbalzo), {k});
                Piano(kBalcone, bordo(a, -kSbalzo), bordo(a + 1, 0), k);
            }
        }
    }

    void PareteDiTaglio() {
        for (int k = 1; k <= piani_; ++k)
            Parete(kParete, Lato(fx_[2], fy_.back(), fx_[3], fy_.back()), k);
    }

    // Y of the ridge: the middle line, or half-way between the two middle ones.
    int Colmo() const {
        const int fili = fy_.Quanti();
        return (m_.Y.Quota((fili - 1) / 2) + m_.Y.Quota(fili / 2)) / 2;
    }

    // Lines of the roof from front eaves to back eaves; the ridge gets its own when no main line
    // runs in the middle.
    Fila<LineaFalda> LineeFalda() const {
        Fila<LineaFalda> linee{{m_.Y.Quota(0) - kSporto, 0}};
        for (int b = 0; b < fy_.Quanti(); ++b) {
            if (2 * b == fy_.Quanti()) linee.push_back({Colmo(), fy_[b]});
            linee.push_back({m_.Y.Quota(b), fy_[b]});
        }
        linee.push_back({m_.Y.Fine() + kSporto, fy_.back()});
        return linee;
    }

    // Where a main line along Y crosses a line of the roof.
    Posto InFalda(int a, const LineaFalda &linea) const {
        if (!Presente(fx_[a], linea.J)) return {};
        const std::int64_t colmo = Colmo();
        const std::int64_t gronda = linea.Y <= colmo ? m_.Y.Quota(0) : m_.Y.Fine();
        const std::int64_t salita = m_.AltezzaColmo * (linea.Y - gronda) / (colmo - gronda);
        return Posizione{m_.X.Quota(a), linea.Y, m_.Quote.back() + static_cast<int>(salita)};
    }

    void Puntoni(const Fila<LineaFalda> &linee) {
        const int k = piani_ + 1, ultimo = fx_.Quanti() - 1;
        for (int a = 0; a <= ultimo; ++a) {
            for (int l = 0; l + 1 < linee.Quanti(); ++l)
                e_.Metti(kPuntone, InFalda(a, linee[l]), InFalda(a, linee[l + 1]), {k, a, -1});
            for (int b = 1; b + 1 < fy_.Quanti(); ++b)
                e_.Metti(kMonaco, Filo(a, b, piani_), InFalda(a, {m_.Y.Quota(b), fy_[b]}), {k});
        }
        // the hip over the chamfer
        e_.Metti(kPuntone, InFalda(ultimo - 1, linee[1]), InFalda(ultimo, linee[2]), {k});
    }

    // Purlins, and panels between them. The outer lines have the beams of the last floor instead.
    void Falde(const Fila<LineaFalda> &linee) {
        const int ultima = linee.Quanti() - 1, piano = piani_ + 1;
        for (int l = 0; l <= ultima; ++l)
            for (int a = 0; a + 1 < fx_.Quanti(); ++a) {
                const Posto p = InFalda(a, linee[l]), q = InFalda(a + 1, linee[l]);
                if (l != 1 && l != ultima - 1) e_.Metti(kArcareccio, p, q, {piano, -1, l});
                if (l == ultima) continue;
                const bool vetro = (a + l) % 4 == 3 && l > 0 && l < ultima - 1;
                const Posto s = InFalda(a, linee[l + 1]), r = InFalda(a + 1, linee[l + 1]);
                e_.Metti(vetro ? kLucernario : kFalda, {p, q, r, s}, piano);
            }
    }

    const Maglia &m_;
    Edificio e_;
    const Fila<Linea> &lx_ = m_.X.Linee, &ly_ = m_.Y.Linee;
    const Fila<int> &fx_ = m_.X.Fili, &fy_ = m_.Y.Fili;
    int piani_;
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
