#include "Edificio.h"

#include <algorithm>
#include <cstdint>

namespace telva::generatore {

namespace {

constexpr int Cm = 100; // unit of length: hundredths of a cm

std::vector<int> Somma(const std::vector<int> &passi, int inizio) {
    std::vector<int> linee{inizio};
    for (const int passo : passi) linee.push_back(linee.back() + passo);
    return linee;
}

} // namespace

Maglia MagliaCampione(Casuale &caso) {
    const int estremo = (540 + 30 * caso.Intero(-1, 1)) * Cm;
    const int interno = (480 + 30 * caso.Intero(-1, 1)) * Cm;
    const int fronte = (540 + 30 * caso.Intero(-1, 1)) * Cm;
    const int interpiano = (310 + 10 * caso.Intero(0, 3)) * Cm;
    Maglia m;
    m.FiliX = Somma({estremo, interno, interno, estremo}, 0);
    m.FiliY = Somma({fronte, 420 * Cm, fronte}, 0);
    m.SuddX = {1, 1, 1, 2};
    m.SuddY = {2, 1, 1};
    m.Quote = Somma({420 * Cm, interpiano, interpiano, interpiano, interpiano}, 0);
    m.AltezzaColmo = 250 * Cm;
    m.Sporto = 90 * Cm;
    m.Dettagli = true;
    return m;
}

Maglia MagliaGrande(int campateX, int campateY, int piani, Casuale &caso) {
    const auto passi = [&caso](int quanti) {
        std::vector<int> tutti(static_cast<std::size_t>(quanti));
        for (int &passo : tutti) passo = (390 + 30 * caso.Intero(0, 3)) * Cm;
        return tutti;
    };
    const auto centrati = [](const std::vector<int> &p) {
        int totale = 0;
        for (const int passo : p) totale += passo;
        return Somma(p, -totale / 2);
    };
    Maglia m;
    m.FiliX = centrati(passi(campateX));
    m.FiliY = centrati(passi(campateY));
    m.SuddX.assign(static_cast<std::size_t>(campateX), 3);
    m.SuddY.assign(static_cast<std::size_t>(campateY), 3);
    m.Quote = Somma(std::vector<int>(static_cast<std::size_t>(piani), 300 * Cm), 0);
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

Edificio::Edificio(const Maglia &maglia, Cantiere &cantiere)
    : M(maglia), C(cantiere), LX(Suddividi(maglia.FiliX, maglia.SuddX)),
      LY(Suddividi(maglia.FiliY, maglia.SuddY)) {
    for (std::size_t i = 0; i < LX.size(); ++i)
        if (LX[i].Filo >= 0) FX.push_back(i);
    for (std::size_t j = 0; j < LY.size(); ++j)
        if (LY[j].Filo >= 0) FY.push_back(j);
}

std::vector<Edificio::Linea> Edificio::Suddividi(const std::vector<int> &fili,
                                                 const std::vector<int> &sudd) {
    std::vector<Linea> linee;
    for (std::size_t c = 0; c < sudd.size(); ++c) {
        const int luce = fili[c + 1] - fili[c];
        const int campata = static_cast<int>(c);
        for (int s = 0; s < sudd[c]; ++s)
            linee.push_back({fili[c] + luce * s / sudd[c], s == 0 ? campata : -1, campata});
    }
    const int ultimo = static_cast<int>(sudd.size());
    linee.push_back({fili.back(), ultimo, ultimo - 1});
    return linee;
}

Posizione Edificio::Incrocio(std::size_t i, std::size_t j, std::size_t k) const {
    return {LX[i].Quota, LY[j].Quota, M.Quote[k]};
}

// The corner bay between the last X line and the first Y line is cut along its diagonal.
bool Edificio::Presente(std::size_t i, std::size_t j) const {
    const std::size_t inizio = FX[FX.size() - 2];
    return i <= inizio || j >= FY[1] || i - inizio <= j;
}

bool Edificio::InNucleo(std::size_t i, std::size_t j) const {
    const std::array<int, 2> campo{LX[i].Campata, LY[j].Campata};
    return std::find(M.Nuclei.begin(), M.Nuclei.end(), campo) != M.Nuclei.end();
}

void Edificio::Costruisci() {
    Cordoli();
    for (std::size_t k = 1; k < M.Quote.size(); ++k) {
        Pilastri(k);
        Travi(k);
        Solaio(k);
    }
    for (const auto &nucleo : M.Nuclei) Nucleo(nucleo[0], nucleo[1]);
    Controventi();
    if (M.Dettagli) {
        for (const AstaCandidata &a : Secondarie()) C.Asta(a.Tipo, a.I, a.J, a.Dove);
        Torre();
        Balconi();
        PareteDiTaglio();
    }
    Copertura();
}

// Ground beams: on the outline only under the small building.
void Edificio::Cordoli() {
    const auto salta = [this](std::size_t filo, const std::vector<std::size_t> &fili) {
        return M.Dettagli && filo > 0 && filo + 1 < fili.size();
    };
    const auto cordolo = [this](std::size_t i0, std::size_t j0, std::size_t i1, std::size_t j1,
                                Luogo dove) {
        if (Presente(i0, j0) && Presente(i1, j1))
            C.Asta(TipoAsta::Cordolo, Incrocio(i0, j0, 0), Incrocio(i1, j1, 0), dove);
    };
    for (std::size_t b = 0; b < FY.size(); ++b)
        for (std::size_t a = 0; a + 1 < FX.size() && !salta(b, FY); ++a)
            cordolo(FX[a], FY[b], FX[a + 1], FY[b], {0, -1, static_cast<int>(b)});
    for (std::size_t a = 0; a < FX.size(); ++a)
        for (std::size_t b = 0; b + 1 < FY.size() && !salta(a, FX); ++b)
            cordolo(FX[a], FY[b], FX[a], FY[b + 1], {0, static_cast<int>(a), -1});
    const std::size_t smusso = FX.size() - 2;
    cordolo(FX[smusso], FY[0], FX[smusso + 1], FY[1], {0});
}

void Edificio::Pilastri(std::size_t k) {
    for (std::size_t b = 0; b < FY.size(); ++b)
        for (std::size_t a = 0; a < FX.size(); ++a)
            if (Presente(FX[a], FY[b]))
                C.Asta(TipoAsta::Pilastro, Incrocio(FX[a], FY[b], k - 1), Incrocio(FX[a], FY[b], k),
                       {static_cast<int>(k), static_cast<int>(a), static_cast<int>(b)});
}

void Edificio::Travi(std::size_t k) {
    const int piano = static_cast<int>(k);
    for (const std::size_t j : FY)
        for (std::size_t i = 0; i + 1 < LX.size(); ++i)
            if (Presente(i, j) && Presente(i + 1, j))
                C.Asta(TipoAsta::TraveX, Incrocio(i, j, k), Incrocio(i + 1, j, k),
                       {piano, LX[i].Campata, LY[j].Filo});
    for (const std::size_t i : FX)
        for (std::size_t j = 0; j + 1 < LY.size(); ++j) {
            if (!Presente(i, j) || !Presente(i, j + 1)) continue;
            if (M.Dettagli && i == 0 && LY[j].Campata == 1)
                TraveYConPorta(j, k);
            else
                C.Asta(TipoAsta::TraveY, Incrocio(i, j, k), Incrocio(i, j + 1, k),
                       {piano, LX[i].Filo, LY[j].Campata});
        }
    const std::size_t inizio = FX[FX.size() - 2];
    for (std::size_t t = 0; t < FY[1]; ++t)
        C.Asta(TipoAsta::Smusso, Incrocio(inizio + t, t, k), Incrocio(inizio + t + 1, t + 1, k),
               {piano});
}

// The beam in front of the lift tower is split where the door jambs stand.
void Edificio::TraveYConPorta(std::size_t j, std::size_t k) {
    const std::array<int, 4> y = PortaTorre();
    for (std::size_t t = 0; t + 1 < y.size(); ++t)
        C.Asta(TipoAsta::TraveY, {LX[0].Quota, y[t], M.Quote[k]},
               {LX[0].Quota, y[t + 1], M.Quote[k]}, {static_cast<int>(k), 0, LY[j].Campata});
}

void Edificio::Solaio(std::size_t k) {
    for (std::size_t j = 0; j + 1 < LY.size(); ++j)
        for (std::size_t i = 0; i + 1 < LX.size(); ++i)
            if (!InNucleo(i, j)) CampoSolaio(i, j, k);
}

void Edificio::CampoSolaio(std::size_t i, std::size_t j, std::size_t k) {
    const std::array<std::array<std::size_t, 2>, 4> giro{
        {{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}};
    std::vector<Posizione> angoli;
    for (const auto &[a, b] : giro)
        if (Presente(a, b)) angoli.push_back(Incrocio(a, b, k));
    if (angoli.size() < 3) return;
    const bool centrale = i > 0 && j > 0 && LX[i].Filo < 0 && LX[i + 1].Filo < 0 &&
                          LY[j].Filo < 0 && LY[j + 1].Filo < 0 && angoli.size() == 4;
    C.Guscio(TipoGuscio::Solaio, angoli, {static_cast<int>(k), LX[i].Campata, LY[j].Campata},
             centrale);
}

void Edificio::Controventi() {
    const std::size_t ultimaX = FX.size() - 1;
    const std::size_t ultimaY = FY.size() - 1;
    for (std::size_t k = 1; k < M.Quote.size(); ++k) {
        Croce(0, 0, true, k);
        Croce(1, ultimaY, true, k);
        Croce(ultimaX, ultimaY / 2, false, k);
        if (!M.Dettagli) Croce(0, ultimaY / 2, false, k);
    }
}

// Two crossing diagonals in the bay that starts at the given main lines, below level k.
void Edificio::Croce(std::size_t filoXa, std::size_t filoYa, bool lungoX, std::size_t k) {
    const std::size_t i0 = FX[filoXa];
    const std::size_t j0 = FY[filoYa];
    const std::size_t i1 = lungoX ? FX[filoXa + 1] : i0;
    const std::size_t j1 = lungoX ? j0 : FY[filoYa + 1];
    if (!Presente(i0, j0) || !Presente(i1, j1)) return;
    const Luogo dove{static_cast<int>(k), lungoX ? -1 : static_cast<int>(filoXa),
                     lungoX ? static_cast<int>(filoYa) : -1};
    C.Asta(TipoAsta::Controvento, Incrocio(i0, j0, k - 1), Incrocio(i1, j1, k), dove);
    C.Asta(TipoAsta::Controvento, Incrocio(i1, j1, k - 1), Incrocio(i0, j0, k), dove);
}

std::vector<AstaCandidata> Edificio::AsteAggiungibili() const {
    std::vector<AstaCandidata> tutte;
    if (!M.Dettagli) tutte = Secondarie();
    const std::vector<AstaCandidata> croci = CrociInterne();
    tutte.insert(tutte.end(), croci.begin(), croci.end());
    return tutte;
}

std::vector<AstaCandidata> Edificio::Secondarie() const {
    std::vector<AstaCandidata> tutte;
    for (std::size_t j = 0; j < LY.size(); ++j) {
        if (LY[j].Filo >= 0) continue;
        for (std::size_t k = 1; k < M.Quote.size(); ++k)
            for (std::size_t i = 0; i + 1 < LX.size(); ++i)
                if (Presente(i, j) && Presente(i + 1, j) && !InNucleo(i, j))
                    tutte.push_back({Incrocio(i, j, k),
                                     Incrocio(i + 1, j, k),
                                     TipoAsta::Secondaria,
                                     {static_cast<int>(k), LX[i].Campata, LY[j].Campata}});
    }
    return tutte;
}

std::vector<AstaCandidata> Edificio::CrociInterne() const {
    std::vector<AstaCandidata> tutte;
    for (std::size_t b = 1; b + 1 < FY.size(); ++b)
        for (std::size_t k = 1; k < M.Quote.size(); ++k)
            for (std::size_t a = 0; a + 1 < FX.size(); ++a) {
                const Luogo dove{static_cast<int>(k), -1, static_cast<int>(b)};
                tutte.push_back({Incrocio(FX[a], FY[b], k - 1), Incrocio(FX[a + 1], FY[b], k),
                                 TipoAsta::Controvento, dove});
                tutte.push_back({Incrocio(FX[a + 1], FY[b], k - 1), Incrocio(FX[a], FY[b], k),
                                 TipoAsta::Controvento, dove});
            }
    return tutte;
}

std::vector<std::vector<Posizione>> Edificio::Tramezzi() const {
    std::vector<std::vector<Posizione>> tutti;
    for (std::size_t k = 1; k + 1 < M.Quote.size(); ++k)
        for (std::size_t b = 1; b + 1 < FY.size(); ++b)
            for (std::size_t i = 0; i + 1 < LX.size(); ++i)
                if (!InNucleo(i, FY[b]) && !InNucleo(i, FY[b] - 1)) // no wall of a core there
                    tutti.push_back({Incrocio(i, FY[b], k), Incrocio(i + 1, FY[b], k),
                                     Incrocio(i + 1, FY[b], k + 1), Incrocio(i, FY[b], k + 1)});
    return tutti;
}

} // namespace telva::generatore
