// Starts and ends as a caller sees them, files that cannot be read or written, and the boxes that
// say so; several programs on one job.
#include "Sessione.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

std::string Minuscolo(const fs::path &percorso) {
    std::wstring testo = percorso.wstring();
    CharLowerBuffW(testo.data(), static_cast<DWORD>(testo.size()));
    return Utf8(testo);
}

RiquadroAtteso Errore(const std::string &testo) {
    return {.titolo = "Problema", .testo = testo, .icona = "errore"};
}

} // namespace

SCENARIO(avvio_con_titolo_e_lista) {
    const auto lavoro = LavoroPiccolo(amb, "Prova2");
    ScriviIngresso(lavoro, "  Città di prova ", " 8,12 ", 1);
    Programma p(amb.telva, amb.Argomento("lavoro=Prova2|resto"));
    UGUALE(p.Testo(p.Principale()), "Città di prova - " + Utf8(lavoro.wstring()));
    VERIFICA(p.Spuntato("OptElem(1)"));
    UGUALE(p.Testo("StringaSel"), "8,12");
    p.Premi("Ctrl+G");
    UGUALE(p.AttendiFine(), 0U);
    UGUALE(Scritto(lavoro), "8,12\r\n");
}

SCENARIO(avvio_sbagliato) {
    Programma p(amb.telva, L"   ");
    ChiudiRiquadro(p, {.titolo = "ERRORE",
                       .testo = "Avvio del programma: argomento non presente",
                       .icona = "errore"});
    UGUALE(p.AttendiFine(), 1U); // a crash has another code
}

SCENARIO(avvio_con_file_impediti) {
    const Ambiente mio = Copia(amb);
    const auto lavoro = LavoroPiccolo(mio);
    ScriviIngresso(lavoro, "Prova", "", 0);
    const auto font = mio.dati / "progra" / "font.001";
    const struct {
        fs::path file;
        std::string detto;
    } casi[] = {{.file = lavoro / "STRUTTUR.STR", .detto = "Errore nella lettura della struttura"},
                {.file = font, .detto = "Errore in lettura del file " + Minuscolo(font) + " !"}};
    for (const auto &caso : casi) {
        Passo("put an obstacle in the way of " + Utf8(caso.file.wstring()));
        const std::string salvo = LeggiByte(caso.file).value_or("");
        {
            const Impedito impedito(caso.file, Ostacolo::Chiuso);
            Programma p(mio.telva, mio.Argomento("LAVORO=prova1|"));
            ChiudiRiquadro(p, Errore(caso.detto));
            p.Principale(); // it goes on
            Esci(p);
            UGUALE(Scritto(lavoro), "(no file)");
        }
        std::ofstream(caso.file, std::ios::binary) << salvo;
    }
}

SCENARIO(uscita_impedita) {
    const struct {
        Ostacolo ostacolo;
        bool rifiutata;
        std::string file; // what it holds afterwards
    } casi[] = {{.ostacolo = Ostacolo::Chiuso, .rifiutata = true, .file = "8\r\n"},
                {.ostacolo = Ostacolo::SolaLettura, .rifiutata = true, .file = "8\r\n"},
                {.ostacolo = Ostacolo::Letto, .rifiutata = false, .file = "9,14\r\n"}};
    for (const auto &caso : casi) {
        Sessione s(amb, Genere::Aste, "9,14");
        const auto file = s.lavoro / "TelvaOut.txt";
        ScriviFile(file, "8\n");
        {
            const Impedito impedito(file, caso.ostacolo);
            s.Scegli("File", "Aggiorna ed Esci");
            if (caso.rifiutata)
                ChiudiRiquadro(s, Errore(" Non è possibile scrivere il file di uscita "));
            UGUALE(s.AttendiFine(), 0U);
        }
        UGUALE(Scritto(s.lavoro), caso.file);
        VerificaNessunResto(s.lavoro);
    }
}

// Three programs on one job that end at once: each answer is written whole, one of them stays.
SCENARIO(tre_programmi_insieme) {
    const std::array<std::string, 3> liste = {"8", "9,14", "7,7-9"};
    const auto lavoro = LavoroPiccolo(amb);
    for (int giro = 0; giro < 5; ++giro) {
        std::vector<std::unique_ptr<Programma>> programmi;
        for (const std::string &lista : liste) {
            ScriviIngresso(lavoro, "Insieme", lista, 1);
            programmi.push_back(
                std::make_unique<Programma>(amb.telva, amb.Argomento("LAVORO=prova1|")));
            programmi.back()->Principale();
            UGUALE(programmi.back()->Testo("StringaSel"), lista);
        }
        for (const auto &p : programmi)
            PostMessageW(GetAncestor(p->Controllo("Disegno"), GA_ROOT), WM_COMMAND,
                         NumeroDi(telva::FormTelva.Salva), 0);
        for (const auto &p : programmi) UGUALE(p->AttendiFine(), 0U);
        const std::string rimasta = Scritto(lavoro);
        const auto quale = std::ranges::find(liste, rimasta.substr(0, rimasta.find('\r')));
        UGUALE(rimasta, quale == liste.end() ? "one of the three" : *quale + "\r\n");
        VerificaNessunResto(lavoro);
    }
}
