#include "Schermo.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <utility>

namespace telva::prove {

namespace {

// Draws on a 32-bit memory bitmap and gives its pixels.
Immagine Dipingi(int larghezza, int altezza, const std::function<BOOL(HDC)> &disegna) {
    BITMAPINFO testa{};
    testa.bmiHeader = {sizeof(BITMAPINFOHEADER), larghezza, -altezza, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *punti = nullptr;
    HDC memoria = CreateCompatibleDC(nullptr);
    HBITMAP mappa = CreateDIBSection(nullptr, &testa, DIB_RGB_COLORS, &punti, nullptr, 0);
    if (!memoria || !mappa) throw std::runtime_error("no memory bitmap");
    HGDIOBJ prima = SelectObject(memoria, mappa);
    const BOOL riuscito = disegna(memoria);
    GdiFlush();
    const auto *p = static_cast<const std::uint32_t *>(punti);
    Immagine risultato{larghezza, altezza, {p, p + std::size_t(larghezza) * std::size_t(altezza)}};
    for (auto &colore : risultato.pixel) colore &= 0xFFFFFF;
    SelectObject(memoria, prima);
    DeleteObject(mappa);
    DeleteDC(memoria);
    if (!riuscito) throw std::runtime_error("nothing could be drawn on a memory bitmap");
    return risultato;
}

// Mean difference of a colour channel, 0 to 255.
double Distanza(const Immagine &a, const Immagine &b) {
    double somma = 0;
    for (std::size_t i = 0; i < a.pixel.size(); ++i)
        for (int scorri : {0, 8, 16})
            somma += std::abs(static_cast<int>((a.pixel[i] >> scorri) & 255) -
                              static_cast<int>((b.pixel[i] >> scorri) & 255));
    return somma / (3.0 * static_cast<double>(a.pixel.size()));
}

} // namespace

std::uint32_t Immagine::In(int x, int y) const {
    if (x < 0 || y < 0 || x >= larghezza || y >= altezza)
        throw std::runtime_error("pixel outside the picture");
    return pixel[std::size_t(y) * std::size_t(larghezza) + std::size_t(x)];
}

Immagine Schermo(const RECT *zona) {
    const RECT tutto{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    const RECT r = zona ? *zona : tutto;
    const int w = r.right - r.left, h = r.bottom - r.top;
    return Dipingi(w, h, [&](HDC dc) {
        HDC schermo = GetDC(nullptr);
        const BOOL copiato = BitBlt(dc, 0, 0, w, h, schermo, r.left, r.top, SRCCOPY);
        ReleaseDC(nullptr, schermo);
        return copiato;
    });
}

void ScriviBmp(const Immagine &immagine, const std::filesystem::path &file) {
    auto punti = immagine.pixel;
    for (auto &p : punti) p |= 0xFF000000; // opaque for readers that take the fourth byte as alpha
    const auto byte = static_cast<DWORD>(punti.size() * sizeof punti[0]);
    const BITMAPINFOHEADER info{
        sizeof info, immagine.larghezza, -immagine.altezza, 1, 32, BI_RGB, byte, 0, 0, 0, 0};
    const DWORD inizio = sizeof(BITMAPFILEHEADER) + sizeof info;
    const BITMAPFILEHEADER testa{0x4D42, inizio + byte, 0, 0, inizio};
    std::ofstream uscita(file, std::ios::binary);
    uscita.write(reinterpret_cast<const char *>(&testa), sizeof testa);
    uscita.write(reinterpret_cast<const char *>(&info), sizeof info);
    uscita.write(reinterpret_cast<const char *>(punti.data()), static_cast<std::streamsize>(byte));
    if (!uscita.flush()) throw std::runtime_error("cannot write " + file.string());
}

// An icon's handle means nothing in another process, so its picture is compared with the system's
// own icons, drawn on the colour of its top left pixel.
std::string NomeIcona(HWND icona) {
    static const std::array<std::pair<const char *, LPCWSTR>, 4> note{
        {{"errore", IDI_HAND},
         {"avviso", IDI_EXCLAMATION},
         {"informazione", IDI_ASTERISK},
         {"domanda", IDI_QUESTION}}};
    RECT zona{};
    if (!GetWindowRect(icona, &zona) || IsRectEmpty(&zona)) return {};
    const auto vista = Schermo(&zona);
    const auto c = vista.In(0, 0);
    HBRUSH fondo = CreateSolidBrush(RGB(c >> 16, (c >> 8) & 255, c & 255));
    std::string nome;
    double migliore = 4; // different icons are more than 20 apart
    for (const auto &nota : note) {
        const auto modello = Dipingi(vista.larghezza, vista.altezza, [&](HDC dc) {
            return DrawIconEx(dc, 0, 0, LoadIconW(nullptr, nota.second), vista.larghezza,
                              vista.altezza, 0, fondo, DI_NORMAL);
        });
        if (const double d = Distanza(vista, modello); d < migliore) {
            nome = nota.first;
            migliore = d;
        }
    }
    DeleteObject(fondo);
    return nome;
}

} // namespace telva::prove
