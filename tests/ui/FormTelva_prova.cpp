// The main window: its smallest size, its icon, its keys and boxes, and what it asks the window
// system for.
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Schermo.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct FormTelvaProva : Utente {
    ModuloTelva &f = FormTelva;
    FormTelvaProva() { Apri(Telaio()); }

    std::string Posti() const {
        std::string posti;
        for (const Controllo *c : f.controlli)
            posti += Scritto(c->NomeControllo().c_str(), +c->Left, +c->Top, +c->Width, +c->Height);
        return posti;
    }
};

TEST_F(FormTelvaProva, RidottaAIconaNienteSiDispone) {
    const std::string prima = Posti();
    f.ridotta = true;
    Ridimensiona(99, 99);
    EXPECT_EQ(f.Width, 99) << "an icon has no smallest size";
    EXPECT_EQ(Posti(), prima);
    f.ridotta = false;
    Ridimensiona(99, 8000);
    EXPECT_EQ(f.Width, 5550) << "its smallest width";
    EXPECT_EQ(f.Height, 8000);
    Ridimensiona(15000, 99);
    EXPECT_EQ(f.Height, 7120) << "its smallest height";
    Ridimensiona(15000, 11400);
    EXPECT_EQ(Posti(), prima);
}

TEST_F(FormTelvaProva, SoloITastiDellaVistaSonoSuoi) {
    EXPECT_TRUE(f.KeyDown(kTastoDestra));
    EXPECT_FALSE(f.KeyDown('A'));
}

// --- typed numbers

TEST_F(FormTelvaProva, LaVirgolaEUnPunto) {
    Intervallo(Estremo::MaxX, "99,4"); // half a unit more is still below 100
    EXPECT_EQ(Detto(), "");
    EXPECT_EQ(AttNodo[1], 0);

    Menu("Rappresentazione");
    Digita(FormOpt.Raggio, "0,5");
    Premi(FormOpt.Salva);
    EXPECT_EQ(OpzioneNumero(kOpzRaggioNodo), 0.5);
    Trappola("7,9");
    EXPECT_EQ(OpzInt[kOpzTrappola], 7);
}

TEST_F(FormTelvaProva, NumeriRifiutatiSenzaStruttura) {
    AzzeraProgramma();
    Cancella("lavori/prova1/STRUTTUR.STR");
    Avvia();
    EXPECT_EQ(Detto(), "Problema: Errore nella lettura della struttura");
    Angolo(Asse::X, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Angolo di vista non valido: abc (usare cifre, ad esempio 22.5)");
    EXPECT_EQ(f.Angolo[0].Text(), "30");
    EXPECT_EQ(f.fuoco, &f.Angolo[0]) << "ready to be corrected";
    Intervallo(Estremo::MinX, "abc");
    EXPECT_EQ(Detto(), "ERRORE: Intervallo di coordinate non valido: abc");
    EXPECT_EQ(f.IntX[0].Text(), "");
    EXPECT_EQ(f.fuoco, &f.IntX[0]);
}

TEST_F(FormTelvaProva, UnIntervalloRifiutatoConLaSuaBarraNonPrendeITasti) {
    f.fuoco = nullptr;
    Intervallo(Estremo::MinX, "abc", kSenzaInvio);
    Menu("BarraLat");
    EXPECT_EQ(Detto(), "ERRORE: Intervallo di coordinate non valido: abc");
    EXPECT_EQ(f.IntX[0].Text(), "0");
    EXPECT_EQ(f.fuoco, nullptr) << "a hidden box";
    Menu("BarraLat");
    Intervallo(Estremo::MinX, "abc", kSenzaInvio);
    Menu("BarraIcone");
    EXPECT_EQ(f.fuoco, &f.IntX[0]) << "to be seen, and corrected";
}

// --- the window system, as far as the forms ask for it

TEST_F(FormTelvaProva, LaXChiudeLaFinestraEIlDialogoAperto) {
    Schermo schermo;
    f.Mostra();
    EXPECT_EQ(schermo.Fatto(), "mostra FormTelva");
    EXPECT_TRUE(f.Mostrata());
    Menu("Rappresentazione");
    EXPECT_EQ(schermo.Fatto(), "modale FormOpt");
    EXPECT_EQ(schermo.fuoco, "CheckSpGus");
    f.Chiudi(); // what the window system calls for its X
    EXPECT_EQ(schermo.Fatto(), "chiudi FormOpt, chiudi FormTelva");
    EXPECT_FALSE(f.Mostrata());
    f.Chiudi();
    EXPECT_EQ(schermo.Fatto(), "") << "a window closes once";
}

TEST_F(FormTelvaProva, UnaRichiestaDiElencoHaIlFuocoEIlTastoDestroIlMenuDellaVista) {
    Schermo schermo;
    ClicDestro(0, 0);
    EXPECT_EQ(schermo.Fatto(), "Visualizza");
    Menu("Aggiungi");
    Menu("Nome");
    EXPECT_EQ(f.fuoco, &f.Risposta);
    EXPECT_EQ(f.Risposta.BackColor, kColoreFinestra);
    Esc();
    EXPECT_EQ(f.Risposta.BackColor, kColoreFaccia);
}

} // namespace telva::prove
