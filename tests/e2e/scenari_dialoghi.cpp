// The two options dialogs by their keys, the boxes at start, and how the windows are laid out.
#include "LavoriProva.h"

#include <array>
#include <utility>

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

// Runs with options and a font of its own, on the same jobs.
Ambiente Copia(Ambiente amb) {
    const auto da = std::exchange(amb.dati, fs::temp_directory_path() / "telva_copia");
    fs::remove_all(amb.dati);
    fs::create_directories(amb.dati);
    for (const char *parte : {"impostazioni", "custom", "progra"})
        fs::copy(da / parte, amb.dati / parte);
    return amb;
}

// What may keep a file from being opened: it is gone, a folder, in another program's hands, or may
// only be read; last, in the hands of one that shares it.
enum Ostacolo { kManca, kCartella, kChiuso, kSolaLettura, kLetto };
class Impedito {
  public:
    Impedito(fs::path file, Ostacolo modo) : file_(std::move(file)) {
        if (modo == kManca || modo == kCartella) fs::remove(file_);
        if (modo == kCartella) fs::create_directory(file_);
        const DWORD insieme = modo == kLetto ? FILE_SHARE_READ | FILE_SHARE_WRITE : 0;
        if (modo == kLetto || modo == kChiuso)
            preso_ = CreateFileW(file_.c_str(), GENERIC_READ, insieme, nullptr, OPEN_EXISTING, 0,
                                 nullptr);
        if (modo == kSolaLettura) SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
    }
    void Libera() const {
        if (preso_) CloseHandle(preso_);
        SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (fs::is_directory(file_)) fs::remove(file_);
    }

  private:
    fs::path file_;
    HANDLE preso_ = nullptr;
};

HWND Apri(Sessione &s, bool trappola) {
    s.Fai(trappola ? "/Z t" : "/Z p");
    return s.p.Dialogo(trappola ? "Opzioni" : "Opzioni di rappresentazione");
}

// Waits for the main window after steps that leave the dialog.
void Lascia(Sessione &s, const std::string &passi) {
    s.Fai(passi);
    s.p.Aspetta("the main window", [&] { return IsWindowEnabled(s.finestra); });
}

std::string Righe(std::string testo) {
    for (auto p = testo.find('|'); p != std::string::npos; p = testo.find('|'))
        testo.replace(p, 1, "\r\n");
    return testo;
}

// Whether a text in the system's font, on as many lines as there is room for, is cut off.
bool Taglia(const std::string &testo, const RECT &r, LONG accanto) {
    NONCLIENTMETRICSW misure{};
    misure.cbSize = sizeof misure;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof misure, &misure, 0);
    HDC dc = GetDC(nullptr);
    HGDIOBJ prima = SelectObject(dc, CreateFontIndirectW(&misure.lfMessageFont));
    const LONG larghezza = r.right - r.left - accanto;
    RECT serve{0, 0, larghezza, 0};
    DrawTextW(dc, Largo(testo).c_str(), -1, &serve, DT_CALCRECT | DT_NOPREFIX | DT_WORDBREAK);
    DeleteObject(SelectObject(dc, prima));
    ReleaseDC(nullptr, dc);
    return !testo.empty() && (serve.right > larghezza || serve.bottom > r.bottom - r.top);
}

// The controls of a window that leave it, meet another one or cut their text, by name.
std::string Difetti(const Programma &p, HWND cima) {
    std::map<std::string, RECT> posti;
    std::string difetti;
    const LONG quadretto = static_cast<LONG>(16 * GetDpiForWindow(cima) / 96);
    RECT interna{}, comune{};
    GetClientRect(cima, &interna);
    for (HWND h = GetWindow(cima, GW_CHILD); h; h = GetWindow(h, GW_HWNDNEXT)) {
        std::array<wchar_t, 64> nome{}, classe{};
        const auto atomo = reinterpret_cast<ULONG_PTR>(GetPropW(h, L"TelvaNome"));
        GlobalGetAtomNameW(static_cast<ATOM>(atomo), nome.data(), 64);
        GetClassNameW(h, classe.data(), 64);
        const std::string chi = Utf8(nome.data()), tipo = Utf8(classe.data());
        // Frames without border only group; a swatch stands on the frame that marks it.
        if (!IsWindowVisible(h) || tipo == "TelvaCornice" || chi.starts_with("LabelBordCol"))
            continue;
        if (chi.empty()) continue; // a label that is only read out
        if (tipo == "Edit" && IsWindowEnabled(h) && p.Testo(GetWindow(h, GW_HWNDPREV)).empty())
            difetti += chi + " nameless; ";
        const RECT r = posti[chi] = p.Posizione(chi);
        if (IntersectRect(&comune, &r, &interna); !EqualRect(&comune, &r))
            difetti += chi + " out; ";
        // Index letters are small, and a swatch's name is only for those who do not see it.
        if ((tipo == "Button" || tipo == "Static") && !chi.starts_with("Label2") &&
            !chi.starts_with("LabelCol(") &&
            Taglia(p.Testo(h), r, tipo == "Button" ? quadretto : 0))
            difetti += chi + " cut; ";
    }
    const auto cornice = [](const std::string &nome) { return nome.starts_with("Frame"); };
    for (const auto &[nome, r] : posti)
        for (const auto &[altro, a] : posti)
            if (nome < altro && IntersectRect(&comune, &r, &a) &&
                !(cornice(nome) && EqualRect(&comune, &a)) &&
                !(cornice(altro) && EqualRect(&comune, &r)))
                difetti += nome + " on " + altro + "; ";
    return posti.empty() ? "no controls" : difetti;
}

} // namespace

SCENARIO(dialogo_trappola) {
    Sessione s(amb, 0);
    Apri(s, true);
    Lascia(s, "Label1=Dimensione della trappola:; TextTrappola=8; Esc");
    const std::pair<std::string, std::string> casi[] = {
        {"-7.6", "8"}, {"12abc", "12"}, {"abc", "0"}, {"0.9", "0"}, {"", "0"}, {"3", "3"}};
    for (const auto &[testo, atteso] : casi)
        for (const std::string conferma : {"Invio", "spazio Command1"}) {
            Apri(s, true);
            Lascia(s, "TextTrappola:=" + testo + "; " + conferma +
                          (atteso != "0" ? ""
                                         : "; box ATTENZIONE| Se la dimensione della trappola è "
                                           "nulla la selezione diretta non è possibile |avviso"));
            Apri(s, true);
            Lascia(s, "TextTrappola=" + atteso + "; TextTrappola:=77; Esc"); // leaves it as it was
        }
    s.Fai("Ctrl+A; clic 20+6; s=Seleziona per finestra"); // out of reach of 3 pixels, not of 20
    Apri(s, true);
    Lascia(s, "TextTrappola:=20; Invio");
    s.Fai("Ctrl+A; s=Selezione diretta; clic 20+6+3; =20");
}

SCENARIO(dialogo_opzioni) {
    const Ambiente mio = Copia(amb);
    const auto file = mio.dati / "custom" / "TelOpzio.txt";
    fs::remove(file);
    Sessione s(mio);
    const std::string salvate = "spazio Salva; box INFORMAZIONE| Opzioni salvate |avviso",
                      testi = " BaseTxt AltezzaTxt DistTxt LabelCol(0) LabelBaseTxt LabelDistTxt; ",
                      spenti = " !BaseTxt !AltezzaTxt !DistTxt !LabelCol(9) !LabelAltezzaTxt; ";
    s.Fai("foto Disegno");
    Apri(s, false);
    s.Fai("on SpMinGus LabelSpMinGus TxtElCont !TxtNodi(0) !TxtAste(4) !TxtGusci(2)" + testi +
          "spunta EvColSel CheckTxtElCont; spazio CheckTxtElCont; on !TxtElCont" + spenti +
          "spazio CheckTxtGusci; on TxtGusci(0) TxtGusci(2)" + testi +
          "spazio CheckTxtGusci; on !TxtGusci(2)" + spenti + "spazio CheckTxtElCont; " + salvate);
    UGUALE(LeggiByte(file).value_or("-"),
           Righe("1|1|1|4||1|5|0|0|0|5|5|1|5|1|1|1|1|1|1|1|1|1|1|1|1|||||"));
    s.Fai("spazio CheckSpGus; on !SpMinGus !LabelSpMinGus; SpNonSel:=9; SpSel:=5x; Raggio:=7.5;"
          "vai EvColSel; Giu; spunta EvColNonSel !EvColSel; spazio CheckTxtNodi; on TxtNodi(0);"
          "spazio TxtNodi(1); BaseTxt:=12.5; AltezzaTxt:=; vai LabelCol(1); Destra; Giu; " +
          salvate);
    UGUALE(LeggiByte(file).value_or("-"),
           Righe("0|1|9|5||0|7.5|0|0|0|12.5|0|3|5|1|0|1|1|1|1|1|1|1|1|1|1|||||"));
    Lascia(s, "AltezzaTxt:=6; SpSel:=33; Esc");
    s.Fai("diversa");                             // drawn with what was saved
    Apri(s, false);                               // what was not saved is gone
    fs::remove(file), fs::create_directory(file); // no file can take this place
    Lascia(s, "SpSel=5; AltezzaTxt=0; Raggio=7.5; spunta EvColNonSel !CheckTxtNodi; spazio Salva;"
              "box INFORMAZIONE| Problemi nel salvataggio delle opzioni |avviso; spazio Chiudi");
}

SCENARIO(riquadri_di_avvio) {
    const Ambiente mio = Copia(amb);
    const auto lavoro = LavoroPiccolo(mio);
    const std::string inizio =
                          "Problema| Impossibile leggere il file " + Utf8(lavoro.wstring()) + "\\",
                      struttura = "Problema|Errore nella lettura della struttura|errore";
    std::wstring font = (mio.dati / "progra" / "font.001").wstring();
    CharLowerBuffW(font.data(), static_cast<DWORD>(font.size()));
    const struct {
        std::string file, contenuto; // without contents the file is missing
        std::vector<std::string> riquadri;
    } casi[] = {
        {"spessori", "", {inizio + "spessori|errore"}},
        {"sezioni_", "", {inizio + "sezioni_|errore"}},
        {"el_conti.tmp", "", {inizio + "el_conti.tmp|errore"}},
        {Utf8(font), "", {"Problema|File " + Utf8(font) + " inesistente!|errore"}},
        {"STRUTTUR.STR", "", {struttura}},
        {"STRUTTUR.STR",
         "Release\n1\n0,0,0\n1\n0 0 1\n32001 0\n",
         {"ERRORE IN STRUTTUR.STR|Nome nodo maggiore di 32000.|avviso", struttura}},
        {"STRUTTUR.STR",
         "Versione 3.8\n",
         {"Attenzione|Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'|"
          "errore"}}};
    for (std::size_t n = 0; n < 3 * std::size(casi); ++n) {
        auto c = casi[n / 3];
        const auto modo = static_cast<Ostacolo>(n % 3);
        if (modo != kManca && !c.contenuto.empty()) continue;
        ScriviIngresso(LavoroPiccolo(mio), "Prova", "", 0);
        const fs::path file = lavoro / fs::path(Largo(c.file)), salvo = file.wstring() + L".salvo";
        fs::copy_file(file, salvo);
        Impedito impedito(file, modo);
        if (modo == kChiuso && c.file == Utf8(font))
            c.riquadri = {"Problema|Errore in lettura del file " + Utf8(font) + " !|errore"};
        if (!c.contenuto.empty()) ScriviFile(file, c.contenuto);
        Programma p(mio.telva, mio.Argomento("LAVORO=prova1|"));
        for (const auto &atteso : c.riquadri) UGUALE(Riquadri(p), atteso);
        if (!c.contenuto.starts_with("Versione")) p.Principale(), p.Premi("Ctrl+E");
        UGUALE(p.AttendiFine(), 0U);
        VERIFICA(!LeggiByte(lavoro / "TelvaOut.txt"));
        impedito.Libera();
        fs::rename(salvo, file);
    }
}

SCENARIO(uscita_impossibile) {
    for (const Ostacolo modo : {kManca, kCartella, kChiuso, kSolaLettura, kLetto}) {
        Sessione s(amb, 1, "9,14");
        const auto file = s.lavoro / "TelvaOut.txt";
        ScriviFile(file, "8\n");
        Impedito impedito(file, modo);
        s.Fai("/F a");
        if (modo != kManca && modo != kLetto)
            UGUALE(Riquadri(s.p), "Problema| Non è possibile scrivere il file di uscita |errore");
        UGUALE(s.p.AttendiFine(), 0U);
        impedito.Libera();
        UGUALE(LeggiByte(file).value_or("-"), modo == kManca || modo == kLetto ? "9,14\r\n"
                                              : modo == kCartella              ? "-"
                                                                               : "8\r\n");
        for (const auto &voce : fs::directory_iterator(s.lavoro))
            VERIFICA(voce.path().wstring().find(L".~") == std::wstring::npos);
    }
}

SCENARIO(disposizione) {
    RECT area{}, r{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const auto misura = [&](HWND finestra) {
        GetWindowRect(finestra, &r);
        return std::to_string(r.right - r.left) + "x" + std::to_string(r.bottom - r.top);
    };
    const auto twip = [](HWND finestra, LONG larghezza, LONG altezza, const RECT &limite) {
        const auto dpi = static_cast<LONG>(GetDpiForWindow(finestra));
        return std::to_string(std::min((larghezza * dpi + 1439) / 1440, limite.right)) + "x" +
               std::to_string(std::min((altezza * dpi + 1439) / 1440, limite.bottom));
    };
    {
        Programma p(amb.telva, amb.Argomento());
        HWND finestra = p.Principale(); // never larger than the screen
        UGUALE(misura(finestra), twip(finestra, 15000, 11400, area));
    }
    Sessione s(amb, 1, "7-14");
    s.p.Punta(s.disegno, {5, 5}); // or a button under the pointer would light up
    s.p.Dimensiona(s.finestra, 100, 100);
    DIVENTA(s.p, misura(s.finestra), twip(s.finestra, 5550, 7120, area));
    s.Fai("Ctrl+A");
    for (const std::string voce : {"8", "o"}) { // the longest question and the longest title
        s.Fai("/S " + voce + "; Risposta:=1");
        UGUALE(Difetti(s.p, s.finestra), "");
    }
    s.p.Punta(s.disegno, {5, 5}); // a button under the pointer looks different
    s.Fai("foto FrameSel");
    // A dialog of a window in the corner of the screen is still seen whole.
    GetWindowRect(s.finestra, &r);
    SetWindowPos(s.finestra, nullptr, area.right - r.right + r.left, area.bottom - r.bottom + r.top,
                 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const bool trappola : {true, false}) {
        HWND dialogo = Apri(s, trappola);
        UGUALE(Difetti(s.p, dialogo), "");
        GetWindowRect(dialogo, &r);
        RECT comune{};
        IntersectRect(&comune, &r, &area);
        VERIFICA(EqualRect(&comune, &r));
        Lascia(s, "Esc");
    }
    for (const WPARAM comando : {SC_MINIMIZE, SC_RESTORE, SC_MAXIMIZE, SC_RESTORE}) {
        PostMessageW(s.finestra, WM_SYSCOMMAND, comando, 0);
        s.p.Aspetta("the window's new state", [&] {
            return (comando == SC_MINIMIZE) == (IsIconic(s.finestra) != 0) &&
                   (comando == SC_MAXIMIZE) == (IsZoomed(s.finestra) != 0);
        });
        if (comando == SC_MAXIMIZE) s.p.Principale(), UGUALE(Difetti(s.p, s.finestra), "");
    }
    // The bars, taken away and brought back, leave nothing behind.
    s.p.Principale(), s.p.Punta(s.disegno, {5, 5}), s.Fai("uguale");
    for (const std::string voce : {"b", "i", "b", "i"}) {
        s.Fai("/Z " + voce + "; Ctrl+Z; s=Zoom; Esc; s=");
        UGUALE(Difetti(s.p, s.finestra), "");
    }
    s.p.Punta(s.disegno, {5, 5}), s.Fai("uguale");
}
