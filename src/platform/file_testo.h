#pragma once
// A sequential text file, read in the two classic ways: a whole line, or value by value. Lines end
// in CR LF, LF or CR; a byte 1A (hex) ends the file. The bytes are Windows-1252, or what a mark at
// the start says: UTF-8, or UTF-16 of either order. Texts come out as UTF-8.

#include <string>
#include <string_view>
#include <variant>

namespace telva {

// A loosely typed value: nothing, a number or a text.
using Valore = std::variant<std::monostate, double, std::string>;

enum class Lettura { Riuscita, Malformata, FineFile };

class FileTesto {
  public:
    // False when the file cannot be opened or read.
    bool Apri(const std::string &percorso);
    // Takes the bytes as the file's content (for readers of memory).
    void ApriContenuto(std::string contenuto);

    bool Finito() const { return posto_ >= byte_.size(); }
    // Number of the line (1-based) on which the last value or line read stood.
    int Riga() const { return riga_; }
    const std::string &Percorso() const { return percorso_; }

    // Rest of the current line, as bytes (see Testo), without its end; valid while the file lives.
    bool LeggiRiga(std::string_view &riga);
    // Passes over what is left of the line of the value read last.
    void FinisciRiga();
    // The same as LeggiRiga, as UTF-8 text.
    bool LeggiRigaTesto(std::string &riga);
    // Bytes of this file as UTF-8 text.
    std::string Testo(std::string_view byte) const;

    // Next value as a number: blank lines and blanks in front are passed over, it ends at a comma,
    // blank or line end, which is consumed. An empty value is 0. On Malformata (the value is
    // consumed) and on FineFile `valore` stays as it was.
    Lettura LeggiNumero(double &valore);
    // Next value as a text, up to a comma or the line end; quotes around it are removed.
    Lettura LeggiTesto(std::string &testo);
    // Next value with the type it has: an empty one is nothing, a number is a number.
    Lettura LeggiValore(Valore &valore);
    // Passes over one value of any kind: a quoted text whole, anything else up to a comma, blank or
    // line end.
    void SaltaValore();

  private:
    void SaltaVuoti();
    void SaltaVuotiERighe();
    void ConsumaFineValore();
    void ConsumaFineRiga();
    std::string_view ProssimoTesto(bool &traVirgolette);

    std::string percorso_;
    std::string byte_;  // without mark and end
    bool utf8_ = false; // the bytes are UTF-8, not Windows-1252
    std::size_t posto_ = 0;
    int righePassate_ = 0; // line ends consumed so far
    int riga_ = 0;
};

} // namespace telva
