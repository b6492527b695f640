// The same operations in the real program, measured from outside: each message is sent to its
// window and counted until it has been handled, picture on the screen included.
//   misure_finestra --telva EXE --vuota EXE --argomento STRING --etichette STRING [--quadro
//   WIDTHxHEIGHT]
// --etichette starts a job whose options turn every label on; --quadro is the size of the drawing.
// Prints one line "name WIDTHxHEIGHT median fastest" for each row, in milliseconds, and the peak
// memory in MiB.
#include "Pilota.h"

#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <initializer_list>
#include <string>
#include <vector>

using namespace telva::prove;

namespace {

double Adesso() {
    LARGE_INTEGER ora{}, frequenza{};
    QueryPerformanceCounter(&ora);
    QueryPerformanceFrequency(&frequenza);
    return 1000.0 * static_cast<double>(ora.QuadPart) / static_cast<double>(frequenza.QuadPart);
}

struct Quadro {
    int larghezza = 1000, altezza = 650;
} quadro;
// What the window is larger than its drawing.
constexpr int kOltreX = 202, kOltreY = 180;

struct Tempi {
    double mediana, minimo;
};

Tempi Ordina(std::vector<double> v, double parti = 1) {
    std::sort(v.begin(), v.end());
    return {v[v.size() / 2] / parti, v.front() / parti};
}

void Riga(const std::string &nome, Tempi t) {
    std::printf("%s %dx%d %.3f %.3f\n", nome.c_str(), quadro.larghezza, quadro.altezza, t.mediana,
                t.minimo);
    std::fflush(stdout);
}

void RigaMemoria(const std::string &nome, const Programma &p) {
    const double mib = static_cast<double>(p.LeggiRisorse().piccoByte) / (1 << 20);
    Riga(nome, {mib, mib});
}

template <class Prepara, class Fai>
Tempi Misura(Prepara prepara, Fai fai, int volte = 15) {
    std::vector<double> tempi;
    for (int n = 0; n < volte; ++n) {
        prepara();
        const double da = Adesso();
        fai();
        tempi.push_back(Adesso() - da);
    }
    return Ordina(std::move(tempi));
}

template <class Fai>
Tempi Ripeti(Fai fai, int volte = 15) {
    return Misura([] {}, fai, volte);
}

// Looks again and again without a pause: the time until then is measured.
template <class Fatto>
void Attendi(const char *cosa, Fatto fatto) {
    const double limite = Adesso() + 20000;
    while (!fatto())
        if (Adesso() > limite) throw Fallito(std::string("waited in vain for ") + cosa);
}

BOOL CALLBACK Dipingi(HWND finestra, LPARAM) {
    SendMessageW(finestra, WM_PAINT, 0, 0);
    return TRUE;
}

// From the start of the process to the first picture.
Tempi Avvio(const std::wstring &exe, const std::wstring &argomento, const wchar_t *classe) {
    std::vector<double> tempi;
    for (int n = 0; n < 9; ++n) {
        const double da = Adesso();
        Programma p(exe, argomento);
        HWND finestra = nullptr;
        while (!(finestra = FindWindowW(classe, nullptr)) || !IsWindowVisible(finestra)) Sleep(1);
        Dipingi(finestra, 0);
        EnumChildWindows(finestra, Dipingi, 0);
        tempi.push_back(Adesso() - da);
        PostMessageW(finestra, WM_SYSCOMMAND, SC_CLOSE, 0);
        p.AttendiFine();
    }
    return Ordina(std::move(tempi));
}

// The program with its drawing at the size that is measured.
class Telva {
  public:
    Telva(const std::wstring &exe, const std::wstring &argomento) : p_(exe, argomento) {
        const HWND finestra = p_.Principale();
        p_.Dimensiona(finestra, quadro.larghezza + kOltreX, quadro.altezza + kOltreY);
        disegno_ = p_.Controllo("Disegno");
        barra_ = p_.Controllo("Toolbar1");
    }
    void Bottone(int posto) const { // in the order of the tool bar, separators left out
        SendMessageW(GetParent(barra_), WM_COMMAND, static_cast<WPARAM>(3000 + posto),
                     reinterpret_cast<LPARAM>(barra_));
    }
    void Tipo(int k) const {
        SendMessageW(p_.Controllo("OptElem(" + std::to_string(k) + ")"), BM_CLICK, 0, 0);
    }
    // Enter is posted, as the message loop takes keys; done when the summary has changed.
    void Lista(const char *testo) const {
        const HWND casella = p_.Controllo("Risposta");
        SetWindowTextW(casella, Largo(testo).c_str());
        PostMessageW(casella, WM_KEYDOWN, VK_RETURN, 0);
        const HWND riassunto = p_.Controllo("StringaSel");
        Attendi("the list", [&] { return SendMessageW(riassunto, WM_GETTEXTLENGTH, 0, 0) != 0; });
    }
    // Emptied, as it may have waited for another list.
    void PerNome() {
        p_.Menu("Alt+S", "o");
        p_.Aspetta("the answer box",
                   [&] { return p_.Abilitato("Risposta") && p_.Testo("Risposta").empty(); });
    }
    void Mouse(UINT messaggio, int x, int y, WPARAM tasti = 0) const {
        SendMessageW(disegno_, messaggio, messaggio == WM_LBUTTONDOWN ? MK_LBUTTON : tasti,
                     MAKELPARAM(x, y));
    }
    // What has been left to paint is painted now.
    void Dipingi() const { SendMessageW(disegno_, WM_PAINT, 0, 0); }
    // A move over nothing and a little painted: what the way into the program and out of it takes.
    void Passaggio(int x, int y, std::initializer_list<RECT> zone) const {
        Mouse(WM_MOUSEMOVE, x, y);
        for (const RECT &zona : zone) InvalidateRect(disegno_, &zona, FALSE);
        Dipingi();
    }
    // Messages that wait in the program's queue all at once, until the last has been handled:
    // behind them stands one that makes a mark in a box.
    void Raffica(const std::vector<MSG> &messaggi) const {
        const HWND spia = p_.Controllo("GusciAtt");
        const LRESULT prima = SendMessageW(spia, BM_GETCHECK, 0, 0);
        for (const MSG &m : messaggi) PostMessageW(disegno_, m.message, m.wParam, m.lParam);
        PostMessageW(spia, BM_SETCHECK, prima == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED, 0);
        Attendi("the messages to be handled",
                [&] { return SendMessageW(spia, BM_GETCHECK, 0, 0) != prima; });
        SendMessageW(spia, BM_SETCHECK, static_cast<WPARAM>(prima), 0);
    }
    LPARAM SulloSchermo(int x, int y) const {
        POINT p{x, y};
        ClientToScreen(disegno_, &p);
        return MAKELPARAM(p.x, p.y);
    }
    POINT Angolo() const {
        RECT r{};
        GetClientRect(disegno_, &r);
        return {r.right - 2, r.bottom - 2};
    }
    Programma p_;

  private:
    HWND disegno_ = nullptr, barra_ = nullptr;
};

enum { kZoom = 3, kRidisegna = 5, kAggiungi = 6, kRimuoviTutto = 8 };
const std::string kNomi[] = {"nodi", "aste", "gusci", "elementi"};

void Rettangoli(const Telva &t) {
    const POINT angolo = t.Angolo();
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        const auto prepara = [&] {
            t.Bottone(kRimuoviTutto);
            t.Mouse(WM_LBUTTONDOWN, 2, 2); // nothing there: a window opens
            t.Mouse(WM_MOUSEMOVE, angolo.x, angolo.y);
        };
        const auto fai = [&] { t.Mouse(WM_LBUTTONDOWN, angolo.x, angolo.y); };
        Riga("Rettangolo/" + kNomi[k], Misura(prepara, fai));
        prepara();
        fai(); // stays selected
    }
}

void Dirette(const Telva &t) {
    const POINT angolo = t.Angolo();
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        Riga("Diretta/" + kNomi[k],
             Misura([&] { t.Bottone(kRimuoviTutto); },
                    [&] { t.Mouse(WM_LBUTTONDOWN, angolo.x / 2, angolo.y / 2); }));
        t.Mouse(WM_LBUTTONDOWN, angolo.x / 2, angolo.y / 2); // a window left open is closed
    }
}

void Liste(Telva &t) {
    for (int k = 0; k < 2; ++k) {
        t.Tipo(k);
        t.PerNome();
        Riga("Lista/" + kNomi[k],
             Misura([&] { t.Bottone(kRimuoviTutto); }, [&] { t.Lista("1-20000"); }, 9));
    }
}

// In direct pick, to and fro over the middle of the picture, where most elements lie.
void Anteprime(const Telva &t) {
    const POINT angolo = t.Angolo();
    int n = 0;
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        t.Bottone(kAggiungi);
        const auto fai = [&] {
            t.Mouse(WM_MOUSEMOVE, angolo.x / 2 + ++n % 40, angolo.y / 2);
            t.Dipingi();
        };
        Riga("Anteprima/" + kNomi[k], Ripeti(fai, 45));
    }
}

// One move of the second corner of a zoom rectangle over the whole drawing, painted.
void Elastici(const Telva &t) {
    const POINT angolo = t.Angolo();
    t.Bottone(kZoom);
    t.Mouse(WM_LBUTTONDOWN, 10, 10);
    int n = 0;
    const auto fai = [&] {
        const int scarto = ++n % 2 * 7;
        t.Mouse(WM_MOUSEMOVE, angolo.x - 20 - scarto, angolo.y - 20 - scarto);
        t.Dipingi();
    };
    Riga("Elastici/rettangolo", Ripeti(fai, 45));
    t.Bottone(kRidisegna);
}

// A drag with the middle button, move by move and with ten moves waiting; ten wheel steps waiting.
void Trascinamento(const Telva &t) {
    constexpr int kQuanti = 10;
    const POINT angolo = t.Angolo();
    const int x = angolo.x / 2, y = angolo.y / 2;
    int n = 0;
    t.Mouse(WM_MBUTTONDOWN, x, y, MK_MBUTTON);
    Riga("Trascinamento", Misura([&] { n = (n + 1) % 20; },
                                 [&] { t.Mouse(WM_MOUSEMOVE, x + 3 * n, y, MK_MBUTTON); }));
    std::vector<MSG> mosse, scatti;
    for (int k = 0; k < kQuanti; ++k) {
        mosse.push_back({nullptr, WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(x + 5 * k, y + k), 0, {}});
        const auto verso = static_cast<WORD>(k % 2 ? -WHEEL_DELTA : WHEEL_DELTA);
        scatti.push_back(
            {nullptr, WM_MOUSEWHEEL, MAKEWPARAM(0, verso), t.SulloSchermo(x, y), 0, {}});
    }
    Riga("Trascinamento/dieci", Ripeti([&] { t.Raffica(mosse); }, 9));
    t.Mouse(WM_MBUTTONUP, x, y);
    Riga("Rotella/dieci", Ripeti([&] { t.Raffica(scatti); }, 9));
    int scatto = 0;
    Riga("Rotella", Ripeti([&] { t.Raffica({scatti[++scatto % 2]}); }, 10));
}

void Operazioni(Telva &t) {
    t.Bottone(kAggiungi);
    Riga("Ridisegno/niente", Ripeti([&] { t.Bottone(kRidisegna); }));
    Rettangoli(t);
    Riga("Ridisegno/tutto", Ripeti([&] { t.Bottone(kRidisegna); }));
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        t.Bottone(kRimuoviTutto);
    }
    int x = 0;
    Riga("Coordinate", Misura([&] { ++x; }, [&] { t.Mouse(WM_MOUSEMOVE, 300 + x, 300); }, 45));
    const auto passaggio = [&](const char *nome, std::initializer_list<RECT> zone) {
        Riga(nome, Misura([&] { ++x; }, [&] { t.Passaggio(3 + x % 2, 3, zone); }, 45));
    };
    const auto [destra, sotto] = t.Angolo();
    passaggio("Mezzo/passaggio", {{0, 0, 1, 1}});
    passaggio("Mezzo/angoli", {{0, 0, 1, 1}, {destra - 20, sotto - 20, destra - 19, sotto - 19}});
    passaggio("Mezzo/quadro", {{0, 0, destra, sotto}});
    Dirette(t);
    Anteprime(t);
    Liste(t);
    Elastici(t);
    Trascinamento(t);
}

// Both programs with a window of the size that telva.exe is born with.
void Avvii(const std::wstring &telva, const std::wstring &argomento, const std::wstring &vuota) {
    Riga("Nuda/avvio", Avvio(vuota, L"1000x760", L"FinestraVuota"));
    Riga("Programma/avvio", Avvio(telva, argomento, L"TelvaFinestra"));
}

// What the bare program holds with a window of the same size.
void Nuda(const std::wstring &vuota) {
    const std::wstring misura = std::to_wstring(quadro.larghezza + kOltreX) + L"x" +
                                std::to_wstring(quadro.altezza + kOltreY);
    Programma p(vuota, misura);
    const HWND finestra = p.Principale(L"FinestraVuota");
    RigaMemoria("Nuda/MemoriaMiB", p);
    PostMessageW(finestra, WM_SYSCOMMAND, SC_CLOSE, 0);
    p.AttendiFine();
}

} // namespace

int main() {
    int numero = 0;
    wchar_t **parole = CommandLineToArgvW(GetCommandLineW(), &numero);
    std::wstring telva, vuota, argomento, etichette, misura;
    for (int i = 1; i + 1 < numero; i += 2) {
        const std::wstring chiave = parole[i];
        (chiave == L"--telva"       ? telva
         : chiave == L"--vuota"     ? vuota
         : chiave == L"--etichette" ? etichette
         : chiave == L"--quadro"    ? misura
                                    : argomento) = parole[i + 1];
    }
    if (!misura.empty() &&
        std::swscanf(misura.c_str(), L"%dx%d", &quadro.larghezza, &quadro.altezza) != 2)
        return 2;
    try {
        Avvii(telva, argomento, vuota);
        Nuda(vuota);
        {
            Telva t(telva, argomento);
            Operazioni(t);
            RigaMemoria("Programma/MemoriaMiB", t.p_);
        }
        const Telva t(telva, etichette);
        Riga("Ridisegno/etichette", Ripeti([&] { t.Bottone(kRidisegna); }));
    } catch (const std::exception &e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
