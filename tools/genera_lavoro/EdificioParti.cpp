// Walls, cores, balconies and roof.
#include "Edificio.h"

#include <cstdint>

namespace telva::generatore {

namespace {

constexpr int Cm = 100;
constexpr int AltezzaPorta = 210 * Cm;
constexpr int LarghezzaTorre = 420 * Cm;
constexpr int ExtraCorsa = 130 * Cm; // lift tower above the ridge

} // namespace

void Edificio::Parete(TipoGuscio tipo, const Pianta &pianta, int z0, int z1, int piano) {
    for (std::size_t p = 0; p + 1 < pianta.size(); ++p) {
        const auto [xa, ya] = pianta[p];
        const auto [xb, yb] = pianta[p + 1];
        C.Guscio(tipo, {{xa, ya, z0}, {xb, yb, z0}, {xb, yb, z1}, {xa, ya, z1}}, {piano});
    }
}

// Four points in plan: wall, door, wall. The triangles beside the door spare the outer edges,
// shared with the walls around the corner, a node at the height of the lintel.
void Edificio::PareteConPorta(const Pianta &pianta, int z0, int z1, int piano) {
    const auto punto = [&pianta](std::size_t p, int z) {
        return Posizione{pianta[p][0], pianta[p][1], z};
    };
    const int zp = z0 + AltezzaPorta;
    const TipoGuscio nucleo = TipoGuscio::Nucleo;
    const std::array<std::array<std::size_t, 2>, 2> fianchi{{{0, 1}, {3, 2}}};
    for (const auto &[fuori, dentro] : fianchi) {
        C.Guscio(nucleo, {punto(fuori, z0), punto(dentro, z0), punto(dentro, zp)}, {piano});
        C.Guscio(nucleo, {punto(fuori, z0), punto(dentro, zp), punto(fuori, z1)}, {piano});
        C.Guscio(nucleo, {punto(fuori, z1), punto(dentro, zp), punto(dentro, z1)}, {piano});
    }
    C.Guscio(nucleo, {punto(1, zp), punto(2, zp), punto(2, z1), punto(1, z1)}, {piano});
}

void Edificio::Nucleo(int campataX, int campataY) {
    const std::size_t i0 = FX[static_cast<std::size_t>(campataX)];
    const std::size_t i1 = FX[static_cast<std::size_t>(campataX) + 1];
    const std::size_t j0 = FY[static_cast<std::size_t>(campataY)];
    const std::size_t j1 = FY[static_cast<std::size_t>(campataY) + 1];
    Pianta davanti, dietro, sinistra, destra;
    for (std::size_t i = i0; i <= i1; ++i) {
        davanti.push_back({LX[i].Quota, LY[j0].Quota});
        dietro.push_back({LX[i].Quota, LY[j1].Quota});
    }
    for (std::size_t j = j0; j <= j1; ++j) {
        sinistra.push_back({LX[i0].Quota, LY[j].Quota});
        destra.push_back({LX[i1].Quota, LY[j].Quota});
    }
    for (std::size_t k = 1; k < M.Quote.size(); ++k) {
        const int piano = static_cast<int>(k);
        PareteConPorta(davanti, M.Quote[k - 1], M.Quote[k], piano);
        for (const Pianta *lato : {&dietro, &sinistra, &destra})
            Parete(TipoGuscio::Nucleo, *lato, M.Quote[k - 1], M.Quote[k], piano);
    }
}

std::array<int, 4> Edificio::PortaTorre() const {
    const int mezzo = (M.FiliY[1] + M.FiliY[2]) / 2;
    return {M.FiliY[1], mezzo - 60 * Cm, mezzo + 60 * Cm, M.FiliY[2]};
}

void Edificio::Torre() {
    const std::array<int, 4> y = PortaTorre();
    const int lontano = -LarghezzaTorre;
    const Pianta porta{{0, y[0]}, {0, y[1]}, {0, y[2]}, {0, y[3]}};
    const Pianta guscio{
        {0, y[0]},       {lontano / 2, y[0]}, {lontano, y[0]}, {lontano, (y[0] + y[3]) / 2},
        {lontano, y[3]}, {lontano / 2, y[3]}, {0, y[3]}};
    for (std::size_t k = 1; k < M.Quote.size(); ++k) {
        const int piano = static_cast<int>(k);
        Parete(TipoGuscio::Nucleo, guscio, M.Quote[k - 1], M.Quote[k], piano);
        PareteConPorta(porta, M.Quote[k - 1], M.Quote[k], piano);
    }
    const int piano = UltimoPiano() + 1;
    const int tetto = M.Quote.back() + M.AltezzaColmo + ExtraCorsa;
    Parete(TipoGuscio::Nucleo, guscio, M.Quote.back(), tetto, piano);
    Parete(TipoGuscio::Nucleo, porta, M.Quote.back(), tetto, piano);
    C.Guscio(TipoGuscio::Copertina,
             {{lontano, y[0], tetto}, {0, y[0], tetto}, {0, y[3], tetto}, {lontano, y[3], tetto}},
             {piano});
}

// The last floor has none: the eaves are there.
void Edificio::Balconi() {
    const int profondo = -140 * Cm;
    for (std::size_t k = 2; k + 1 < M.Quote.size(); ++k) {
        const int z = M.Quote[k];
        const int piano = static_cast<int>(k);
        for (std::size_t a = 1; a <= 3; ++a)
            C.Asta(TipoAsta::Mensola, {M.FiliX[a], 0, z}, {M.FiliX[a], profondo, z}, {piano});
        for (std::size_t a = 1; a <= 2; ++a) {
            const int x0 = M.FiliX[a];
            const int x1 = M.FiliX[a + 1];
            C.Asta(TipoAsta::Secondaria, {x0, profondo, z}, {x1, profondo, z}, {piano});
            C.Guscio(TipoGuscio::Balcone,
                     {{x0, profondo, z}, {x1, profondo, z}, {x1, 0, z}, {x0, 0, z}}, {piano});
        }
    }
}

void Edificio::PareteDiTaglio() {
    const Pianta pianta{{M.FiliX[2], M.FiliY.back()}, {M.FiliX[3], M.FiliY.back()}};
    for (std::size_t k = 1; k < M.Quote.size(); ++k)
        Parete(TipoGuscio::Parete, pianta, M.Quote[k - 1], M.Quote[k], static_cast<int>(k));
}

// Lines of the roof from front eaves to back eaves; the ridge gets its own when no main line runs
// in the middle.
std::vector<Edificio::LineaFalda> Edificio::LineeFalda() const {
    std::vector<LineaFalda> linee;
    linee.push_back({M.FiliY.front() - M.Sporto, 0, -1, true});
    for (std::size_t b = 0; b < FY.size(); ++b) {
        linee.push_back({M.FiliY[b], static_cast<int>(FY[b]), static_cast<int>(b), false});
        if (FY.size() % 2 == 0 && b + 1 == FY.size() / 2)
            linee.push_back(
                {(M.FiliY[b] + M.FiliY[b + 1]) / 2, static_cast<int>(FY[b + 1]), -1, false});
    }
    linee.push_back({M.FiliY.back() + M.Sporto, static_cast<int>(FY.back()), -1, true});
    return linee;
}

Posizione Edificio::InFalda(std::size_t i, const LineaFalda &linea) const {
    const std::size_t meta = M.FiliY.size() / 2;
    const bool dispari = M.FiliY.size() % 2 == 0;
    const std::int64_t colmo = dispari ? (M.FiliY[meta - 1] + M.FiliY[meta]) / 2 : M.FiliY[meta];
    const std::int64_t gronda = linea.Y <= colmo ? M.FiliY.front() : M.FiliY.back();
    const std::int64_t salita = M.AltezzaColmo * (linea.Y - gronda) / (colmo - gronda);
    return {LX[i].Quota, linea.Y, M.Quote.back() + static_cast<int>(salita)};
}

void Edificio::Copertura() {
    const std::vector<LineaFalda> linee = LineeFalda();
    Puntoni(linee);
    Arcarecci(linee);
    Manto(linee);
}

void Edificio::Puntoni(const std::vector<LineaFalda> &linee) {
    const int piano = UltimoPiano() + 1;
    const auto presente = [this](std::size_t i, const LineaFalda &l) {
        return Presente(i, static_cast<std::size_t>(l.J));
    };
    for (std::size_t a = 0; a < FX.size(); ++a) {
        const std::size_t i = FX[a];
        for (std::size_t l = 0; l + 1 < linee.size(); ++l)
            if (presente(i, linee[l]) && presente(i, linee[l + 1]))
                C.Asta(TipoAsta::Puntone, InFalda(i, linee[l]), InFalda(i, linee[l + 1]),
                       {piano, static_cast<int>(a), -1});
        for (std::size_t b = 1; b + 1 < FY.size(); ++b)
            C.Asta(TipoAsta::Monaco, Incrocio(i, FY[b], M.Quote.size() - 1),
                   InFalda(i, {M.FiliY[b], static_cast<int>(FY[b]), static_cast<int>(b), false}),
                   {piano, static_cast<int>(a), static_cast<int>(b)});
    }
    const std::size_t ultimo = FX.size() - 1; // hip over the chamfer
    C.Asta(TipoAsta::Puntone, InFalda(FX[ultimo - 1], linee[1]), InFalda(FX[ultimo], linee[2]),
           {piano});
}

// The outer lines have the beams of the last floor: no purlin there.
void Edificio::Arcarecci(const std::vector<LineaFalda> &linee) {
    const int piano = UltimoPiano() + 1;
    for (std::size_t l = 0; l < linee.size(); ++l) {
        if (l == 1 || l + 2 == linee.size()) continue;
        const std::size_t j = static_cast<std::size_t>(linee[l].J);
        for (std::size_t a = 0; a + 1 < FX.size(); ++a)
            if (Presente(FX[a], j) && Presente(FX[a + 1], j))
                C.Asta(TipoAsta::Arcareccio, InFalda(FX[a], linee[l]), InFalda(FX[a + 1], linee[l]),
                       {piano, -1, static_cast<int>(l)});
    }
}

void Edificio::Manto(const std::vector<LineaFalda> &linee) {
    const int piano = UltimoPiano() + 1;
    for (std::size_t l = 0; l + 1 < linee.size(); ++l)
        for (std::size_t a = 0; a + 1 < FX.size(); ++a) {
            std::vector<Posizione> angoli;
            const std::array<std::array<std::size_t, 2>, 4> giro{
                {{a, l}, {a + 1, l}, {a + 1, l + 1}, {a, l + 1}}};
            for (const auto &[x, y] : giro)
                if (Presente(FX[x], static_cast<std::size_t>(linee[y].J)))
                    angoli.push_back(InFalda(FX[x], linee[y]));
            if (angoli.size() < 3) continue;
            const bool vetro = (a + l) % 4 == 3 && !linee[l].Sporto && !linee[l + 1].Sporto;
            C.Guscio(vetro ? TipoGuscio::Lucernario : TipoGuscio::Falda, angoli,
                     {piano, static_cast<int>(a), static_cast<int>(l)});
        }
}

} // namespace telva::generatore
