// Every command by each of its doors (menu, tool bar, keys), and the selections they start.
#include "LavoriProva.h"

using namespace telva::prove;

namespace {

// For each element kind: s runs, r is refused (and its command is grey), - does nothing.
const struct {
    const char *voce;
    std::string nome, esiti;
} kProprieta[] = {{"m", "materiale", "rssss"},    {"o", "nome elemento", "sssss"},
                  {"6", "sezione", "rsrs-"},      {"7", "spessore", "rrsr-"},
                  {"8", "orientamento", "rsrs-"}, {"9", "svincolo", "rsrr-"},
                  {"10", "vincolo", "srrr-"}};

// By which doors a command is given; inside the answer box the keys must not act on its text.
std::vector<std::string> Porte(const char *voce, int bottone, const std::string &tasti) {
    std::vector<std::string> porte{"bottone " + std::to_string(bottone), voce};
    if (!tasti.empty()) porte.push_back(tasti);
    if (!tasti.empty()) porte.push_back("Ctrl+A; /S o; Risposta:=5; " + tasti);
    return porte;
}

} // namespace

SCENARIO(comandi_per_ogni_porta) {
    Sessione s(amb, 1, "8");
    const struct {
        int bottone;
        const char *suggerimento, *voce, *tasti, *prima, *dopo;
    } comandi[] = {
        {3, "Ottimizza", "/V o", "Ctrl+O", "rotella 9; vede !4", "in 4 4"},
        {4, "Zoom", "/V z", "Ctrl+Z", "", "s=Zoom"},
        {5, "Sposta", "/V s", "Ctrl+S", "", "s=Sposta"},
        {6, "Ridisegna", "/V r", "Ctrl+R", "IntX(0):=300", "vede !1; IntX(0):=0; Invio; vede 1"},
        {8, "Aggiungi selezione", "/O a", "Ctrl+A", "",
         "f=Aggiungi selezione; s=Selezione diretta"},
        {9, "Rimuovi selezione", "/O r", "Ctrl+T", "", "f=Rimuovi selezione; s=Selezione diretta"},
        {11, "Inverti selezione", "/O v", "", "/O m; =", "=7,7-9,12,14"},
        {10, "Rimuovi tutto", "/O m", "", "", "=; s=Selezione diretta"},
        {12, "Interrompi", "/O i", "", "Ctrl+T; f=Rimuovi selezione", "f=; s="},
        {14, "Attiva o disattiva la barra laterale", "/Z b", "", "",
         "mostra !FrameSel !FrameAtt !OptElem(4); tip 14 Aggiunge la barra laterale;"
         "/Z b; mostra FrameSel FrameAtt OptElem(4); tip 14 Toglie la barra laterale"}};
    for (const auto &c : comandi) {
        s.Fai("tip " + std::to_string(c.bottone) + " " + c.suggerimento);
        for (const auto &porta : Porte(c.voce, c.bottone, c.tasti))
            s.Fai(c.prima + ("; " + porta) + "; " + c.dopo + "; Esc; f=; s=");
    }
}

SCENARIO(uscite_per_ogni_porta) {
    for (const bool salva : {true, false})
        for (const auto &porta : salva ? Porte("/F a", 0, "Ctrl+G") : Porte("/F e", 1, "Ctrl+E")) {
            Sessione s(amb, 1, "9,14");
            s.Fai(porta);
            UGUALE(s.p.AttendiFine(), 0U);
            UGUALE(LeggiByte(s.lavoro / "TelvaOut.txt").value_or("-"), salva ? "9,14\r\n" : "-");
        }
}

SCENARIO(selezioni_per_attributo) {
    Sessione s(amb);
    const std::vector<std::vector<const char *>> casi{
        {"@0", "c 0; =1,1", "c 1; =2", "c r; =3", "c m; =20", "c 3; =4", "c 9; =1,1-4,20",
         "u; =1,1-4,20", "p 0; =1,1,20", "p 1; =2", "p 2; =3", "p 3; =4", "p 4; =1,1-4,20"},
        {"@1", "c 4; =14", "c 7; =7,7-8", "c 8; =9,12", "l 0; =7,7", "l 1; =8", "l 2; =9",
         "l 3; =14", "l 4; =12", "l 5; =7,7-9,12,14", "u; =7,7-9,12,14"},
        {"@2", "c 5; =31,31-38", "t 0; =31,31", "t 1; =32", "t 2; =33", "t 3; =34", "t 4; =35",
         "t 5; =36", "t 6; =37", "t 7; =38", "t 8; =31,31-38", "u; =31,31-38"},
        {"@3", "c 7; =101,101", "c 8; =102", "c 9; =101,101-103", "l 5; =101,101-103"}};
    for (const auto &caso : casi) {
        s.Fai(caso[0] + std::string("; Ctrl+A"));
        for (std::size_t k = 1; k < caso.size(); ++k)
            s.Fai("/O m; =; /S " + std::string(caso[k]) + "; s=");
    }
    s.Fai("Ctrl+T; /S l 5; =; @0; =1,1-4,20; /S c 2; =1,1-2,4,20");
    // Walls stand for the shells, but their own list is never rebuilt.
    s.Fai("@4; /S t 2; =; @2; =31,31-38; Ctrl+R; =31,31-32,34-38");
}

SCENARIO(selezioni_per_scheda) {
    Sessione s(amb);
    // Kind, property, text and the list that comes of it.
    std::istringstream casi(
        "0 6 2,1 1,1-2,4      0 1 20 20           1 0 5 7,7,9   1 0 6 8,12,14 "
        "1 2 2-3 8,12,14      1 4 1 7,7-8         1 5 3 8,12    1 1 1-3-9 7,7-9 "
        "2 0 5 31,31,33,35,37 2 3 2 32,34,36,38   2 1 33-33,x 33  3 0 5 103 "
        "3 2 1 103            3 4 1,2 101,101-102 3 1 102 102 "
        "1 1 1-20000 7,7-9,12,14");
    std::size_t k = 0;
    for (std::string genere, testo, lista; casi >> genere >> k >> testo >> lista;) {
        const auto &[voce, nome, esiti] = kProprieta[k];
        const auto che = k == 1 ? "i nomi degli elementi" : "i numeri delle schede di " + nome;
        const std::string lettera = k == 3 ? "s" : k == 6 ? "v" : voce; // the only one not grey
        s.Fai("@" + genere + "; Ctrl+A; /O m; =; /S " + lettera + "; s=Seleziona per " + nome +
              "; Domanda=Inserire " + che + " e premere INVIO");
        s.Fai("Risposta:=" + testo + "; Invio; =" + lista + "; Risposta=" + testo);
    }
    // Too much is refused whole, and the question stays.
    const std::string troppi = "; Invio; box ERRORE| La stringa di selezione comprende troppi "
                               "elementi |avviso; =7,7-9,12,14; ";
    s.Fai("Risposta:=0-20000" + troppi + "Ctrl+T; /S m; Risposta:=5,1-100" + troppi +
          "Risposta:=32768; Invio");
    UGUALE(s.p.ChiudiRiquadro().titolo, "ERRORE");
    s.Fai("=7,7-9,12,14; 8; Risposta=327688; Risposta:=5,7-105; Invio; =8,12,14");
}

// A grey command runs nothing: seen once a later command has had its effect.
SCENARIO(rifiuti_e_voci_spente) {
    Sessione s(amb);
    const char *const generi[] = {"i nodi", "le aste", "i gusci", "gli elementi continui"};
    for (const auto &[voce, nome, esiti] : kProprieta) {
        for (std::size_t k = 0; k < 4; ++k) {
            s.Fai("@" + std::to_string(k) + "; Ctrl+A; /S " + voce + "; Ctrl+Z; s=Zoom");
            UGUALE(s.p.Abilitato("Risposta"), esiti[k] != 'r');
        }
        s.Fai("@" + std::to_string(esiti.find('s')) + "; Ctrl+A; /S " + voce + "; Risposta:=99");
        for (std::size_t k = 0; k < 5; ++k) { // the kind may change while the question stands
            s.Fai("@" + std::to_string(k) + "; clic Risposta; Invio");
            if (esiti[k] == 'r')
                s.Fai("box INFORMAZIONE| La selezione per " + nome + " non è possibile per " +
                      generi[k] + " |informazione");
            s.Fai("Risposta=99; s=Seleziona per " + nome);
        }
    }
    for (const std::string f :
         {"0l", "0t", "1p", "1t", "2l", "2p", "3p", "3t"})                 // submenus: an open
        s.Fai("@" + f.substr(0, 1) + "; Ctrl+A; /S " + f[1] + " Esc Esc"); // one wants one more Esc
    s.Fai("@1; Esc; f=; /O v; =7,7-9,12,14");
    for (const std::string voce : {"f", "m", "6", "8", "10", "o", "u"})
        s.Fai("/S " + voce + "; /O v; =; /O v; =7,7-9,12,14; s=");
}

SCENARIO(spunte_invio_ed_esc) {
    Sessione s(amb, 1, "8");
    s.Fai("foto Disegno");
    for (const std::string comando : {"clic NodiAtt", "clic AsteAtt", "clic GusciAtt",
                                      "clic ElSelez", "clic ElNonSelez", "/Z a"})
        s.Fai(comando + "; diversa; " + comando + "; uguale");
    s.Fai("Angolo(2):=45; Invio; diversa; Angolo(2):=0; Invio; uguale");
    s.Fai("IntZ(1):=299; Invio; vede !20; clic TuttoZ; IntZ(1)=450; uguale");
    s.Fai("/Z v; mostra !LabCoord; punta 20; Ctrl+Z; s=Zoom; Esc; s=; LabCoord=;"
          "/Z v; mostra LabCoord; punta 1; LabCoord=0, 0, 0 [N1]");
    for (const std::string dove : {"Risposta", "Angolo(0)", "IntX(1)", "NodiAtt", "OptElem(1)",
                                   "TuttoX", "StringaSel", "Disegno"}) {
        s.Fai("Ctrl+A; /S o; Risposta:=7; clic " + dove + "; Esc; f=; s=; Domanda=; Risposta=");
        s.Fai("on !Risposta; Invio; =8"); // with nothing pending, Enter selects nothing
    }
    // A text that moves is painted whole again.
    s.Fai(
        "Ctrl+A; /S o; s=Seleziona per nome elemento; foto Domanda; /Z i; mostra !Toolbar1; uguale;"
        "/Z i; mostra Toolbar1; uguale");
}
