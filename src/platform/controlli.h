#pragma once
// The vocabulary of the window: controls with properties. A control works without any window
// system; when a window shows it, its peer hears of every change of a property.
// Positions and sizes are twips (1440 to the inch), relative to the parent; colours are
// 0x00BBGGRR, or a system colour (kColore...).

#include "platform/superficie.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace telva {

inline constexpr std::uint32_t kColoreFaccia = 0x8000000F;   // button face
inline constexpr std::uint32_t kColoreFinestra = 0x80000005; // window background

enum class Puntatore { Predefinito = 0, Croce = 2, Ridimensiona = 5, Clessidra = 11 };

// Which property changed, for the peer.
enum class Campo {
    Posizione,
    Visibile,
    Abilitato,
    Didascalia,
    Testo,
    Spunta,
    Sfondo,
    Puntatore,
    Suggerimento,
    Fuoco,
    Immagine,
    Elastici,
    Menu,
    Barra,
    Colore
};

class Controllo;
class Modulo;
class Pulsante;

// What shows a control on the screen.
class Pari {
  public:
    virtual ~Pari() = default;
    virtual void Cambia(Controllo &controllo, Campo campo) = 0;
};

enum class Tipo {
    Modulo,
    Etichetta,
    CasellaTesto,
    CasellaSpunta,
    BottoneOpzione,
    Pulsante,
    Cornice,
    Disegno,
    BarraStrumenti,
    Campione,
    VoceMenu
};

template <class T>
class Proprieta {
  public:
    Proprieta(Controllo &controllo, Campo campo, T valore = T{})
        : controllo_(&controllo), campo_(campo), valore_(std::move(valore)) {}
    Proprieta(const Proprieta &) = delete;

    Proprieta &operator=(const T &valore);
    Proprieta &operator=(const Proprieta &altra) { return *this = altra.valore_; }
    operator const T &() const { return valore_; }
    const T &operator()() const { return valore_; }
    // Takes over what the native control already shows.
    void Accogli(T valore) { valore_ = std::move(valore); }

    template <class U>
    bool operator==(const U &valore) const {
        return valore_ == valore;
    }

  private:
    Controllo *controllo_;
    Campo campo_;
    T valore_;
};

class Controllo {
  public:
    Controllo(Modulo *proprietario, std::string nome, Tipo tipo, Controllo *genitore = nullptr);
    Controllo(const Controllo &) = delete;
    Controllo &operator=(const Controllo &) = delete;
    virtual ~Controllo() = default;

    const std::string &NomeControllo() const { return nome_; }
    Tipo TipoControllo() const { return tipo_; }
    Modulo *Proprietario() const { return proprietario_; }
    Controllo *Genitore() const { return genitore_; }
    void Avvisa(Campo campo);
    void SetFocus();
    void Posiziona(double left, double top, double width, double height);
    // Position within the window, in twips.
    double LeftAssoluto() const;
    double TopAssoluto() const;
    // Shown and all its parents too.
    bool VisibileDavvero() const;
    bool AbilitatoDavvero() const;

    Proprieta<double> Left, Top, Width, Height;
    Proprieta<bool> Visible, Enabled;
    Proprieta<std::string> ToolTipText;

    Pari *pari = nullptr;

  private:
    std::string nome_;
    Tipo tipo_;
    Modulo *proprietario_;
    Controllo *genitore_;
};

template <class T>
Proprieta<T> &Proprieta<T>::operator=(const T &valore) {
    if (!(valore_ == valore)) {
        valore_ = valore;
        controllo_->Avvisa(campo_);
    }
    return *this;
}

// One text in the window: on one line; on several; on several to the right, at half height; as
// data in a sunken field, with an ellipsis and the whole in a tip; as an index; in two rows that
// tell how things stand, each with an ellipsis and the whole in a tip.
enum class StileEtichetta { Semplice, SuPiuRighe, ADestra, Riassunto, Pedice, Stato };

class Etichetta : public Controllo {
  public:
    Etichetta(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::Etichetta, genitore),
          Caption(*this, Campo::Didascalia), Evidenza(*this, Campo::Didascalia) {}
    Proprieta<std::string> Caption;
    Proprieta<std::string> Evidenza; // in the style Stato: the beginning of Caption to stand out
    StileEtichetta stile = StileEtichetta::Semplice;
};

// Frame; without border it only groups its children.
class Cornice : public Controllo {
  public:
    Cornice(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::Cornice, genitore),
          Caption(*this, Campo::Didascalia) {}
    Proprieta<std::string> Caption;
    bool bordo = true;
};

class CasellaTesto : public Controllo {
  public:
    CasellaTesto(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::CasellaTesto, genitore), Text(*this, Campo::Testo),
          BackColor(*this, Campo::Sfondo, kColoreFinestra) {}
    Proprieta<std::string> Text;
    Proprieta<std::uint32_t> BackColor;
    bool stretta = false;             // no margins: every pixel counts
    std::function<void(int)> KeyDown; // virtual key code
};

class CasellaSpunta : public Controllo {
  public:
    CasellaSpunta(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::CasellaSpunta, genitore),
          Caption(*this, Campo::Didascalia), Value(*this, Campo::Spunta, false) {}
    Proprieta<std::string> Caption;
    Proprieta<bool> Value;
    std::function<void()> Click;
    // What a user's click does: the tick changes, then Click runs.
    void Premi();
};

class BottoneOpzione : public Controllo {
  public:
    BottoneOpzione(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::BottoneOpzione, genitore),
          Caption(*this, Campo::Didascalia), Value(*this, Campo::Spunta, false) {}
    Proprieta<std::string> Caption;
    Proprieta<bool> Value;
    std::function<void()> Click;
    // Ticks this button, unticks the others of its parent, then runs Click; by code and by user.
    void Seleziona();
};

class Pulsante : public Controllo {
  public:
    Pulsante(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::Pulsante, genitore),
          Caption(*this, Campo::Didascalia) {}
    Proprieta<std::string> Caption;
    std::function<void()> Click;
};

// Coloured rectangle to choose from, or (without Click) the frame around one, which shows that it
// is `Marcato` (chosen). The caption names the colour for those who do not see it.
class Campione : public Controllo {
  public:
    Campione(Modulo *f, std::string nome, Controllo *genitore = nullptr)
        : Controllo(f, std::move(nome), Tipo::Campione, genitore), BackColor(*this, Campo::Colore),
          Marcato(*this, Campo::Colore, false) {}
    Proprieta<std::uint32_t> BackColor;
    Proprieta<bool> Marcato;
    std::string didascalia;
    std::function<void()> Click;
};

// What the picture beside a menu item shows: a colour, a kind of line or a hatch, by its code.
struct FiguraVoce {
    enum class Genere { Nessuna, Colore, Linea, Retino };
    Genere genere = Genere::Nessuna;
    int codice = 0;
    friend bool operator==(const FiguraVoce &, const FiguraVoce &) = default;
};

// Pixels 0xAARRGGBB (premultiplied), row by row from the top.
struct Figura {
    int larghezza = 0, altezza = 0;
    std::vector<std::uint32_t> pixel;
};

class VoceMenu : public Controllo {
  public:
    VoceMenu(Modulo *f, std::string nome);
    Proprieta<std::string> Caption;
    Proprieta<bool> Checked;
    char scorciatoia = 0; // Ctrl + this letter; 0 = none
    FiguraVoce figura;
    std::function<void()> Click;
    std::vector<VoceMenu *> voci; // of a submenu
};

struct BottoneBarra {
    std::string chiave;
    std::string suggerimento;
    VoceMenu *voce = nullptr;
    bool nuovoGruppo = false;
};

class BarraStrumenti : public Controllo {
  public:
    BarraStrumenti(Modulo *f, std::string nome)
        : Controllo(f, std::move(nome), Tipo::BarraStrumenti) {}
    std::vector<BottoneBarra> Bottoni;
    std::function<void(const std::string &)> ButtonClick;
    // Pixels 0xAARRGGBB (premultiplied) of a button's picture at lato x lato.
    std::function<std::vector<std::uint32_t>(std::string_view chiave, int lato)> FiguraBottone;
    void Suggerimento(std::string_view chiave, const std::string &testo);
    std::string Suggerimento(std::string_view chiave) const;
};

// Rubber bands of a picture box, in its user scale.
class Rettangolo {
  public:
    explicit Rettangolo(Controllo &disegno)
        : Left(disegno, Campo::Elastici), Top(disegno, Campo::Elastici),
          Width(disegno, Campo::Elastici), Height(disegno, Campo::Elastici),
          Visible(disegno, Campo::Elastici) {}
    Proprieta<double> Left, Top, Width, Height;
    Proprieta<bool> Visible;
};

class Segmento {
  public:
    explicit Segmento(Controllo &disegno)
        : X1(disegno, Campo::Elastici), Y1(disegno, Campo::Elastici), X2(disegno, Campo::Elastici),
          Y2(disegno, Campo::Elastici), Visible(disegno, Campo::Elastici) {}
    Proprieta<double> X1, Y1, X2, Y2;
    Proprieta<bool> Visible;
};

class Modulo : public Controllo {
  public:
    explicit Modulo(std::string nome);
    Proprieta<std::string> Caption;
    Proprieta<telva::Puntatore> MousePointer;
    bool ridotta = false; // minimised
    // Width and Height are the outer size of a window that can be resized, the inner size of one
    // that cannot.
    bool ridimensionabile = false;
    double larghezzaMinima = 0, altezzaMinima = 0; // outer, twips
    double dpi = 96;

    std::vector<Controllo *> controlli; // in the order of declaration, which is the tab order
    std::vector<VoceMenu *> barraMenu;  // top level
    std::vector<VoceMenu *> voci;       // every item
    // The picture of a menu item for a check mark of this height, at this scale (1 at 100 %).
    std::function<Figura(const FiguraVoce &, int altezza, double quanto)> FiguraMenu;
    Controllo *fuoco = nullptr;
    Pulsante *predefinito = nullptr; // what Enter presses where it has no other use

    std::function<void()> Resize;
    std::function<void(int)> KeyPress; // character code
    std::function<void(int)> KeyUp;    // virtual key code
    std::function<bool(int)> KeyDown;  // the same, with Ctrl, outside text boxes; true when used
    std::function<void()> Unload;      // the window is about to go
    std::function<void()> Distratta;   // a key, a menu or another window has the word
    std::function<void()> DopoEvento;  // every event of the user ends with it
    std::function<void(int)> Rotella;  // mouse wheel, one step at a time: +1 or -1

    // The DPI and the size that the window will have when it is shown, as far as the system can
    // tell.
    void Prepara();
    void Mostra();
    // Shows the window and returns when it is gone.
    void MostraModale();
    void Chiudi();
    bool Mostrata() const { return mostrata_; }
    void MostraPopup(VoceMenu &menu);

  private:
    bool mostrata_ = false;
};

// What a window system offers for windows; without one, windows are only data.
class SistemaFinestre {
  public:
    virtual ~SistemaFinestre() = default;
    virtual void Prepara(Modulo &modulo) = 0;
    virtual void Mostra(Modulo &modulo) = 0;
    virtual void MostraModale(Modulo &modulo) = 0;
    virtual void Chiudi(Modulo &modulo) = 0;
    virtual void MostraPopup(Modulo &modulo, VoceMenu &menu) = 0;
};
void ImpostaSistemaFinestre(SistemaFinestre *sistema);

// Twips to whole pixels of a window, halves up.
int APixel(double twip, double dpi);
double ATwip(double pixel, double dpi);

// Collects the deltas of a mouse wheel: 120 make one step, and high-resolution wheels send less.
class RaccoltaRotella {
  public:
    // Whole steps reached with this delta, signed; the rest is kept for the next one.
    int Aggiungi(int delta) {
        if ((delta < 0) != (resto_ < 0)) resto_ = 0; // the wheel has turned round
        resto_ += delta;
        const int passi = resto_ / kPasso;
        resto_ -= passi * kPasso;
        return passi;
    }

  private:
    static constexpr int kPasso = 120;
    int resto_ = 0;
};

// N controls of one kind with the names "Nome(0)", "Nome(1)", ...
template <class T, std::size_t N>
class Schiera {
  public:
    Schiera(Modulo *f, const std::string &nome, Controllo *genitore = nullptr)
        : Schiera(f, nome, genitore, std::make_index_sequence<N>{}) {}
    T &operator[](int i) { return voci_.at(static_cast<std::size_t>(i)); }
    static constexpr int Numero() { return static_cast<int>(N); }
    auto begin() { return voci_.begin(); }
    auto end() { return voci_.end(); }

  private:
    template <std::size_t... I>
    Schiera(Modulo *f, const std::string &nome, Controllo *genitore, std::index_sequence<I...>)
        : voci_{{T(f, nome + "(" + std::to_string(I) + ")", genitore)...}} {}
    std::array<T, N> voci_;
};

} // namespace telva
