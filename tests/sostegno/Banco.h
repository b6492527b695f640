#pragma once
// Test bench: the whole program without a window, on an installation in a temporary folder.

#include "platform/messaggi.h"
#include "sostegno/LavoroProva.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace telva::prove {

struct Messaggio {
    std::string testo;
    Gravita gravita;
    std::string titolo;
    friend bool operator==(const Messaggio &, const Messaggio &) = default;
};
void PrintTo(const Messaggio &m, std::ostream *os);

// Every test starts from program start, with an empty installation folder of its own. What it does
// is written down, and printed when an expectation fails: by the steps here and in Utente, by
// Passo, and by Nota for what a test sets or calls itself.
class Banco : public ::testing::Test {
  protected:
    Banco();
    ~Banco() override;

    // Paths with "\" as the program sees them: a name below a temporary folder.
    const std::string &Radice() const { return radice_; }
    // The same folder by a path that no message shows whole.
    std::string RadiceLunga() const;
    std::string Argomento() const { return "|diroot=" + radice_ + "|"; }
    void Scrivi(const std::string &relativo, const std::string &byte) const;
    std::string Leggi(const std::string &relativo) const; // "<assente>" when it is missing
    void Cancella(const std::string &relativo) const;

    // Settings, options (all labels off, aperture 8 pixels) and font; then the job's files.
    void Installa(const std::string &lavoro = "prova1") const;
    void ScriviLavoro(const LavoroProva &l, const std::string &lavoro = "prova1") const;
    void ScriviIngresso(const std::string &titolo, const std::string &lista, int tipo) const;

    // Start-up on the argument string; true when the program goes on, else `codiceFine` is set.
    bool Avvia(const std::string &argomento);
    bool Avvia() { return Avvia(Argomento()); }
    // A start that ends the program or says something ends the test.
    void AvviaSenzaDireNulla();
    // Installa, ScriviLavoro and such a start; angles 0,0,0 when `frontale`.
    void Apri(const LavoroProva &l, bool frontale = true);
    // Runs anything that may end the program; true when it went on.
    bool Esegui(const std::function<void()> &evento);
    // A step: the same, written down. After the end of the program there is no next one.
    void Passo(const std::string &testo, const std::function<void()> &evento);
    static void Nota(const std::string &passo);
    void DimenticaPassi(); // the story begins anew
    // A step as it stands in a test: Clic(3, 4.5), Menu("Aggiungi").
    template <class... T>
    static std::string Scritto(const char *nome, const T &...valori) {
        std::string s;
        ((s += (s.empty() ? "" : ", ") + Letterale(valori)), ...);
        return std::string(nome) + "(" + s + ")";
    }
    bool Finito() const { return codiceFine >= 0; }
    static std::string Lista(); // shown selection

    static std::string Letterale(double v); // as short as it can be read again
    template <class T>
    static std::string Letterale(const T &v) {
        return ::testing::PrintToString(v);
    }

    std::vector<Messaggio> messaggi;
    int codiceFine = -1;

  private:
    void Metti(const std::string &relativo, const std::string &byte) const;
    std::filesystem::path prima_, temporanea_;
    std::string radice_;
};

} // namespace telva::prove
