// The same operations in the real program, measured from outside: each message is sent to its
// window and counted until it has been handled, picture on the screen included.
//   misure_finestra --telva EXE --vuota EXE --argomento STRING --etichette STRING
// The last one starts a job whose options turn every label on.
// Prints one line "name milliseconds" for each row, and the peak memory in MiB.
#include "Pilota.h"

#include <shellapi.h>

#include <algorithm>
#include <cstdio>
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

double Mediana(std::vector<double> v) {
    std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2), v.end());
    return v[v.size() / 2];
}

void Riga(const char *nome, double valore) { std::printf("%s %.2f\n", nome, valore); }

template <class Prepara, class Fai>
double Misura(Prepara prepara, Fai fai, int volte = 15) {
    std::vector<double> tempi;
    for (int n = 0; n < volte; ++n) {
        prepara();
        const double da = Adesso();
        fai();
        tempi.push_back(Adesso() - da);
    }
    return Mediana(std::move(tempi));
}

// From the start of the process to the first picture.
double Avvio(const std::wstring &exe, const std::wstring &argomento, const wchar_t *classe) {
    std::vector<double> tempi;
    for (int n = 0; n < 9; ++n) {
        const double da = Adesso();
        Programma p(exe, argomento);
        HWND finestra = nullptr;
        while (!(finestra = FindWindowW(classe, nullptr)) || !IsWindowVisible(finestra)) Sleep(1);
        SendMessageW(finestra, WM_NULL, 0, 0);
        tempi.push_back(Adesso() - da);
        PostMessageW(finestra, WM_SYSCOMMAND, SC_CLOSE, 0);
        p.AttendiFine();
    }
    return Mediana(std::move(tempi));
}

// The program with its drawing at 1000 x 650 pixels.
class Telva {
  public:
    Telva(const std::wstring &exe, const std::wstring &argomento) : p_(exe, argomento) {
        const HWND finestra = p_.Principale();
        p_.Dimensiona(finestra, 1202, 830);
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
        const double limite = Adesso() + 10000;
        while (SendMessageW(riassunto, WM_GETTEXTLENGTH, 0, 0) == 0)
            if (Adesso() > limite) throw Fallito("the list has not come");
    }
    void PerNome() {
        p_.Menu("Alt+S", "o");
        p_.Aspetta("the answer box", [&] { return p_.Abilitato("Risposta"); });
    }
    void Mouse(UINT messaggio, int x, int y) const {
        SendMessageW(disegno_, messaggio, messaggio == WM_LBUTTONDOWN ? MK_LBUTTON : 0,
                     MAKELPARAM(x, y));
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

enum { kRidisegna = 5, kAggiungi = 6, kRimuoviTutto = 8 };
const char *const nomi[] = {"nodi", "aste", "gusci", "elementi"};

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
        Riga((std::string("Rettangolo/") + nomi[k]).c_str(), Misura(prepara, fai));
        prepara();
        fai(); // stays selected
    }
}

void Operazioni(Telva &t) {
    const POINT angolo = t.Angolo();
    t.Bottone(kAggiungi);
    Riga("Ridisegno/niente", Misura([] {}, [&] { t.Bottone(kRidisegna); }));
    Rettangoli(t);
    Riga("Ridisegno/tutto", Misura([] {}, [&] { t.Bottone(kRidisegna); }));
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        t.Bottone(kRimuoviTutto);
    }
    int x = 0;
    Riga("Coordinate", Misura([&] { ++x; }, [&] { t.Mouse(WM_MOUSEMOVE, 300 + x, 300); }, 45));
    for (int k = 0; k < 4; ++k) {
        t.Tipo(k);
        Riga((std::string("Diretta/") + nomi[k]).c_str(),
             Misura([&] { t.Bottone(kRimuoviTutto); },
                    [&] { t.Mouse(WM_LBUTTONDOWN, angolo.x / 2, angolo.y / 2); }));
        t.Mouse(WM_LBUTTONDOWN, angolo.x / 2, angolo.y / 2); // a window left open is closed
    }
    for (int k = 0; k < 2; ++k) {
        t.Tipo(k);
        Riga((std::string("Lista/") + nomi[k]).c_str(), Misura(
                                                            [&] {
                                                                t.Bottone(kRimuoviTutto);
                                                                t.PerNome();
                                                            },
                                                            [&] { t.Lista("1-20000"); }, 9));
    }
}

} // namespace

int main() {
    int numero = 0;
    wchar_t **parole = CommandLineToArgvW(GetCommandLineW(), &numero);
    std::wstring telva, vuota, argomento, etichette;
    for (int i = 1; i + 1 < numero; i += 2) {
        const std::wstring chiave = parole[i];
        (chiave == L"--telva"       ? telva
         : chiave == L"--vuota"     ? vuota
         : chiave == L"--etichette" ? etichette
                                    : argomento) = parole[i + 1];
    }
    try {
        Riga("FinestraVuota", Avvio(vuota, L"", L"FinestraVuota"));
        Riga("Programma", Avvio(telva, argomento, L"TelvaFinestra"));
        {
            Telva t(telva, argomento);
            Operazioni(t);
            Riga("MemoriaMiB", static_cast<double>(t.p_.LeggiRisorse().piccoByte) / (1 << 20));
        }
        const Telva t(telva, etichette);
        Riga("RidisegnoEtichette", Misura([] {}, [&] { t.Bottone(kRidisegna); }));
    } catch (const std::exception &e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
