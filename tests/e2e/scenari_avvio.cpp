// Starts that go wrong, files that cannot be read or written, and the boxes that say so.
#include "Installazione.h"
#include "Sessione.h"

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

std::string Minuscolo(const fs::path &percorso) {
    std::wstring testo = percorso.wstring();
    CharLowerBuffW(testo.data(), static_cast<DWORD>(testo.size()));
    return Utf8(testo);
}

const RiquadroAtteso kStrutturaErrata{
    .titolo = "Problema", .testo = "Errore nella lettura della struttura", .icona = "errore"};

RiquadroAtteso Illeggibile(const fs::path &file) {
    return {.titolo = "Problema",
            .testo = " Impossibile leggere il file " + Utf8(file.wstring()),
            .icona = "errore"};
}

// Starts on the small job, closes the boxes and leaves a program that has gone on (else it has
// ended by itself); nothing may have been written.
void AvviaConRiquadri(const Ambiente &amb, const fs::path &lavoro,
                      const std::vector<RiquadroAtteso> &riquadri, bool prosegue = true) {
    Programma p(amb.telva, amb.Argomento("LAVORO=prova1|"));
    for (const auto &atteso : riquadri) ChiudiRiquadro(p, atteso);
    if (prosegue) {
        p.Principale();
        p.Premi("Ctrl+E");
    }
    UGUALE(p.AttendiFine(), prosegue ? 0U : 1U);
    VERIFICA(!LeggiByte(lavoro / "TelvaOut.txt"));
}

// Nothing but whole files with the names they had.
void VerificaNessunResto(const fs::path &lavoro) {
    for (const auto &voce : fs::directory_iterator(lavoro))
        VERIFICA(voce.path().wstring().find(L".~") == std::wstring::npos);
}

} // namespace

SCENARIO(avvio_sbagliato) {
    const auto radice = fs::temp_directory_path() / "telva_avvio";
    const std::string dir = Minuscolo(radice);
    const std::string argomento = "|diroot=" + Utf8(radice.wstring()) + "|";
    const RiquadroAtteso mancaArgomento{.titolo = "ERRORE",
                                        .testo = "Avvio del programma: argomento non presente",
                                        .icona = "errore"};
    const RiquadroAtteso mancaDirlav{.titolo = "ERRORE",
                                     .testo = "Errore: file " + dir +
                                              "\\impostazioni\\dirlav errato o mancante",
                                     .icona = "avviso"};
    const RiquadroAtteso mancaLavoro{.titolo = "ERRORE",
                                     .testo = "Errore: file " + dir +
                                              "\\impostazioni\\lavoro errato o mancante",
                                     .icona = "avviso"};
    const RiquadroAtteso nonLavori{
        .titolo = "ERRORE",
        .testo = "Errore: il direttorio dei lavori deve terminare con < \\lavori >",
        .icona = "avviso"};
    const struct {
        std::string argomento, dirlav, lavoro; // without contents there is no such file
        RiquadroAtteso riquadro;
    } casi[] = {
        {.argomento = "", .dirlav = "", .lavoro = "", .riquadro = mancaArgomento},
        {.argomento = "   ", .dirlav = "", .lavoro = "", .riquadro = mancaArgomento},
        {.argomento = "|altro=1|", .dirlav = "", .lavoro = "", .riquadro = mancaArgomento},
        {.argomento = argomento, .dirlav = "", .lavoro = "dimo01\n", .riquadro = mancaDirlav},
        {.argomento = argomento,
         .dirlav = "c:\\lav\n",
         .lavoro = "dimo01\n",
         .riquadro = mancaDirlav},
        {.argomento = argomento,
         .dirlav = "c:\\x\\lavoro\\\n",
         .lavoro = "dimo01\n",
         .riquadro = nonLavori},
        {.argomento = argomento,
         .dirlav = "c:\\x\\lavori\n",
         .lavoro = "",
         .riquadro = mancaLavoro},
        {.argomento = argomento,
         .dirlav = "c:\\x\\lavori\\\n",
         .lavoro = "ab12c\n",
         .riquadro = mancaLavoro},
    };
    for (const auto &caso : casi) {
        Annota("start with '" + caso.argomento + "', dirlav '" + caso.dirlav + "', lavoro '" +
               caso.lavoro + "'");
        fs::remove_all(radice);
        if (!caso.dirlav.empty()) ScriviFile(radice / "impostazioni" / "dirlav", caso.dirlav);
        if (!caso.lavoro.empty()) ScriviFile(radice / "impostazioni" / "lavoro", caso.lavoro);
        Programma p(amb.telva, Largo(caso.argomento));
        ChiudiRiquadro(p, caso.riquadro);
        UGUALE(p.AttendiFine(), 1U); // a crash has another code
    }
    fs::remove_all(radice);
}

SCENARIO(avvio_con_file_impediti) {
    const Ambiente mio = Copia(amb);
    const auto lavoro = LavoroPiccolo(mio);
    const auto font = mio.dati / "progra" / "font.001";
    const struct {
        fs::path file;
        RiquadroAtteso assente, chiuso; // gone or a folder, and held open by another program
    } casi[] = {
        {.file = lavoro / "spessori",
         .assente = Illeggibile(lavoro / "spessori"),
         .chiuso = Illeggibile(lavoro / "spessori")},
        {.file = lavoro / "sezioni_",
         .assente = Illeggibile(lavoro / "sezioni_"),
         .chiuso = Illeggibile(lavoro / "sezioni_")},
        {.file = lavoro / "el_conti.tmp",
         .assente = Illeggibile(lavoro / "el_conti.tmp"),
         .chiuso = Illeggibile(lavoro / "el_conti.tmp")},
        {.file = lavoro / "STRUTTUR.STR", .assente = kStrutturaErrata, .chiuso = kStrutturaErrata},
        {.file = font,
         .assente = {.titolo = "Problema",
                     .testo = "File " + Minuscolo(font) + " inesistente!",
                     .icona = "errore"},
         .chiuso = {.titolo = "Problema",
                    .testo = "Errore in lettura del file " + Minuscolo(font) + " !",
                    .icona = "errore"}}};
    for (const auto &caso : casi)
        for (const auto ostacolo : {Ostacolo::Manca, Ostacolo::Cartella, Ostacolo::Chiuso}) {
            Annota(Utf8(caso.file.wstring()) + " with obstacle " +
                   std::to_string(static_cast<int>(ostacolo)));
            ScriviIngresso(LavoroPiccolo(mio), "Prova", "", 0);
            const fs::path salvo = caso.file.wstring() + L".salvo";
            fs::copy_file(caso.file, salvo);
            {
                const Impedito impedito(caso.file, ostacolo);
                AvviaConRiquadri(mio, lavoro,
                                 {ostacolo == Ostacolo::Chiuso ? caso.chiuso : caso.assente});
            }
            fs::rename(salvo, caso.file);
        }
}

SCENARIO(avvio_con_struttura_errata) {
    const auto lavoro = LavoroPiccolo(amb);
    const RiquadroAtteso nomeGrande{.titolo = "ERRORE IN STRUTTUR.STR",
                                    .testo = "Nome nodo maggiore di 32000.",
                                    .icona = "avviso"};
    const RiquadroAtteso vecchia{
        .titolo = "Attenzione",
        .testo = "Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'",
        .icona = "errore"};
    ScriviIngresso(lavoro, "Prova", "", 0);
    ScriviFile(lavoro / "STRUTTUR.STR", "Release\n1\n0,0,0\n1\n0 0 1\n32001 0\n");
    AvviaConRiquadri(amb, lavoro, {nomeGrande, kStrutturaErrata});
    ScriviFile(lavoro / "STRUTTUR.STR", "Versione 3.8\n");
    AvviaConRiquadri(amb, lavoro, {vecchia}, false);
}

SCENARIO(uscita_impedita) {
    const RiquadroAtteso nonScritto{.titolo = "Problema",
                                    .testo = " Non è possibile scrivere il file di uscita ",
                                    .icona = "errore"};
    const struct {
        Ostacolo ostacolo;
        bool rifiutata;
        std::string file; // what it holds afterwards
    } casi[] = {{.ostacolo = Ostacolo::Manca, .rifiutata = false, .file = "9,14\r\n"},
                {.ostacolo = Ostacolo::Cartella, .rifiutata = true, .file = "(no file)"},
                {.ostacolo = Ostacolo::Chiuso, .rifiutata = true, .file = "8\r\n"},
                {.ostacolo = Ostacolo::SolaLettura, .rifiutata = true, .file = "8\r\n"},
                {.ostacolo = Ostacolo::Letto, .rifiutata = false, .file = "9,14\r\n"}};
    for (const auto &caso : casi) {
        Sessione s(amb, Genere::Aste, "9,14");
        const auto file = s.lavoro / "TelvaOut.txt";
        ScriviFile(file, "8\n");
        {
            const Impedito impedito(file, caso.ostacolo);
            s.Menu("File", "Aggiorna ed Esci");
            if (caso.rifiutata) s.ChiudiRiquadro(nonScritto);
            UGUALE(s.p.AttendiFine(), 0U);
        }
        UGUALE(LeggiByte(file).value_or("(no file)"), caso.file);
        VerificaNessunResto(s.lavoro);
    }
}
