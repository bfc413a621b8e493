#pragma once

#include <QString>

/// The values that the whole program shares and the state of the main form. Form1 owns them and
/// hands references to the rooms; the splash screen sets the paths and the first DPI test.

class clsRegistryAccess;

struct ValoresPrograma
{
    /// The registry's one shared instance. Belongs to the start of the program; never null once a
    /// form loads.
    clsRegistryAccess *registro = nullptr;
    /// Title of the application and of every message box.
    QString Titulo;
    /// Directory of the executable, without a separator at its end (but for the root of a file
    /// system).
    QString PastaPrograma;
    /// PastaPrograma's "Dados": the files that the program writes.
    QString PastaDados;
    /// Sound on. The player has no setting for it; a load switches it off for its time.
    bool SomLigado = false;
    /// The display does not run at 96 DPI.
    bool DpiDiferente = false;
    /// Whether the window region built last could be built; 0 before the first.
    int RegiaoJanela = 0;
    /// The player gave up: the solution stands on the board.
    bool Desistiu = false;
    /// Moment, in seconds of the program's clock, from which the game's time counts. Penalties move
    /// it back.
    double HoraInicio = 0;
    /// Address of the file of a newer version; empty until the player has asked for it.
    QString LinkAtualizacao;
};

struct EstadoForm1
{
    /// Number of the selected item, 0 while none is.
    int item = 0;
    /// Cell that holds the cursor; 0 means none, and the focus then lies on Picture1.
    int Focus = 0;
    /// True: the next selection plays "select.wav".
    bool NoClick = false;
    /// Text of the hint bubble that was last shown, "" when none counts as shown.
    QString avisoa;
    /// The game on the board is finished, solved or given up.
    bool TudoResolvido = false;
    /// A board is being built or loaded. Neither a second build nor a second load starts meanwhile.
    bool Montando = false;
    /// The waiting panel is up: no command and no item button acts.
    bool Aguardando = false;
    /// The first menu entry gives the game up. Not to be told from the number of solved items: a
    /// restart leaves it as it stands.
    bool PodeDesistir = false;
};

/// File names, under PastaPrograma and PastaDados.
inline constexpr char16_t kArquivoBanco[] = u"Perguntas.tes";
inline constexpr char16_t kArquivoUsadas[] = u"jf.dat";
inline constexpr char16_t kArquivoJogos[] = u"save.ini";
inline constexpr char16_t kArquivoRanking[] = u"Ranking.dat";

/// Path of a file in one of the two directories, by its name: the one place where paths are joined.
QString Caminho(const QString &pasta, QStringView nome);

/// Whole seconds of the game so far, never below 0, at the moment `agora` of the program's clock.
int SegundosDeJogo(const ValoresPrograma &valores, double agora);
