// Geometry of the buildings: frame, floors, bracings, lift cores and pitched roof on a grid.
#pragma once

#include "Cantiere.h"
#include "Casuale.h"

#include <array>
#include <vector>

namespace telva::generatore {

// The grid of a building. Lengths are hundredths of a cm, lines and levels ascend.
struct Maglia {
    std::vector<int> FiliX, FiliY; // main grid lines (columns stand where they cross)
    std::vector<int> SuddX, SuddY; // floor panels per bay; last of X = first of Y (chamfer)
    std::vector<int> Quote;        // level 0 is the foundation
    std::vector<std::array<int, 2>> Nuclei; // bays taken by a lift core
    int AltezzaColmo = 0;                   // ridge above the last level
    int Sporto = 0;                         // eaves beyond the outer lines
    bool Dettagli = false; // lift tower outside, balconies, shear wall, all secondary beams
};

// A handsome small building of five storeys; the seed moves spans and heights a little.
Maglia MagliaCampione(Casuale &caso);

// A regular large building around the origin, with panels of a third of the span.
Maglia MagliaGrande(int campateX, int campateY, int piani, Casuale &caso);

struct AstaCandidata {
    Posizione I, J;
    TipoAsta Tipo = TipoAsta::Secondaria;
    Luogo Dove;
};

class Edificio {
  public:
    Edificio(const Maglia &maglia, Cantiere &cantiere);

    // Puts every element of the building on the site.
    void Costruisci();

    // Bars that may be added between nodes that already stand: secondary beams first, then
    // bracings of the inner frames.
    std::vector<AstaCandidata> AsteAggiungibili() const;

    // Partition panels between two floors, between nodes that already stand.
    std::vector<std::vector<Posizione>> Tramezzi() const;

  private:
    struct Linea {
        int Quota, Filo, Campata; // Filo: number of the main line, -1 between two of them
    };
    struct LineaFalda {
        int Y, J, Filo; // J: fine line below (that of the outer beam for the eaves)
        bool Sporto;
    };
    using Pianta = std::vector<std::array<int, 2>>;

    static std::vector<Linea> Suddividi(const std::vector<int> &fili, const std::vector<int> &sudd);
    Posizione Incrocio(std::size_t i, std::size_t j, std::size_t k) const;
    bool Presente(std::size_t i, std::size_t j) const;
    bool InNucleo(std::size_t i, std::size_t j) const;
    int UltimoPiano() const { return static_cast<int>(M.Quote.size()) - 1; }

    void Pilastri(std::size_t k);
    void Travi(std::size_t k);
    void TraveYConPorta(std::size_t j, std::size_t k);
    void Cordoli();
    void Solaio(std::size_t k);
    void CampoSolaio(std::size_t i, std::size_t j, std::size_t k);
    void Controventi();
    void Croce(std::size_t filoXa, std::size_t filoYa, bool lungoX, std::size_t k);
    void Parete(TipoGuscio tipo, const Pianta &pianta, int z0, int z1, int piano);
    void PareteConPorta(const Pianta &pianta, int z0, int z1, int piano);
    void Nucleo(int campataX, int campataY);
    void Torre();
    std::array<int, 4> PortaTorre() const;
    void Balconi();
    void PareteDiTaglio();
    void Copertura();
    std::vector<LineaFalda> LineeFalda() const;
    Posizione InFalda(std::size_t i, const LineaFalda &linea) const;
    void Puntoni(const std::vector<LineaFalda> &linee);
    void Arcarecci(const std::vector<LineaFalda> &linee);
    void Manto(const std::vector<LineaFalda> &linee);
    std::vector<AstaCandidata> Secondarie() const;
    std::vector<AstaCandidata> CrociInterne() const;

    Maglia M;
    Cantiere &C;
    std::vector<Linea> LX, LY;
    std::vector<std::size_t> FX, FY; // fine line of each main line
};

} // namespace telva::generatore
