#include "tests/core/fuzz_files.h"

#include <memory>
#include <QList>
#include <variant>

#include "core/bank/question_bank.h"
#include "core/builder/word_index.h"
#include "core/files/ini_text.h"
#include "core/records/ranking_table.h"
#include "core/records/save_slot.h"
#include "core/registry/registry_access.h"
#include "core/registry/registry_store_portable.h"
#include "tests/core/slow_ini.h"
#include "tests/core/test_board.h"
#include "tests/core/test_files.h"
#include "tools/own_list.h"

namespace {

const std::vector<QByteArray> kNomes = {"s", "T", " s ", "", "\xC9", "jogo4", "k", "Nome"};
const std::vector<QByteArray> kChaves = {"k", "J", "\tk", "", "\xE9", "Tempo", "a=b", "[s", ";c"};
const std::vector<QByteArray> kValores = {"", "1", " x ", "\"q\"", "a\nb", QByteArray(300, 'a')};

const std::vector<QByteArray> kPedacosIni = {"[",
                                             "]",
                                             "=",
                                             "\"",
                                             "'",
                                             " ",
                                             "\t",
                                             ";",
                                             "\r\n",
                                             "\n",
                                             "\r",
                                             "[s]\r\n",
                                             "[t]\n",
                                             "k=1\n",
                                             "K = \"2\"\n",
                                             "j\n",
                                             "\xC9",
                                             "\x80\x81",
                                             QByteArray(1, '\0'),
                                             QByteArray(253, 'a'),
                                             "[]\n",
                                             "\n\n"};

const QByteArray &Um(const std::vector<QByteArray> &lista, Dado &dado)
{
    return lista[Lanca(dado, lista.size())];
}

/// Values agree with the slow reader's, and are no longer than they may be.
QString ProvaLeitura(const QByteArray &dados, Dado &dado)
{
    const TextoIni texto(dados);
    if (texto.Bytes() != dados) {
        return QStringLiteral("the text is not kept byte for byte");
    }
    for (int k = 0; k < 6; ++k) {
        const auto secao = Um(kNomes, dado);
        const auto chave = Um(kChaves, dado);
        const auto valor = texto.Valor(secao, chave);
        if (valor.size() > kMaximoDoValor || valor != ValorLento(dados, secao, chave)) {
            return QStringLiteral("value of %1 in %2")
                .arg(QString::fromLatin1(chave), QString::fromLatin1(secao));
        }
    }
    return {};
}

/// Each write changes at most one line and adds at most two, and leaves what a new reading would
/// see.
QString ProvaGravacao(const QByteArray &dados, Dado &dado)
{
    TextoIni texto(dados);
    for (int k = 0; k < 4; ++k) {
        const auto secao = Um(kNomes, dado);
        const auto chave = Um(kChaves, dado);
        const auto valor = Um(kValores, dado);
        const auto antes = texto.Bytes();
        texto.Escreve(secao, chave, valor);
        const auto depois = texto.Bytes();
        if (depois != GravadoLento(antes, secao, chave, valor)) {
            return QStringLiteral("bytes after writing %1").arg(QString::fromLatin1(chave));
        }
        const auto quebra = ProvaLeitura(depois, dado);
        if (!quebra.isEmpty() ||
            texto.Valor(secao, chave) != TextoIni(depois).Valor(secao, chave)) {
            return QStringLiteral("reading after writing %1, %2")
                .arg(QString::fromLatin1(chave), quebra);
        }
    }
    return {};
}

/// A game that was let through can be laid: all letters on the board, one letter to a cell.
QString ProvaJogo(const JogoSalvo &jogo)
{
    std::array<std::array<QString, kColunas>, kLinhas> letras;
    std::array<std::array<QString, kColunas>, kLinhas> sentidos;
    for (size_t n = 1; n <= kItens; ++n) {
        const auto &item = jogo.itens[n];
        const bool deitada = item.Sentido == u'H';
        for (int k = 0; k < item.Palavra.size(); ++k) {
            const auto linha = static_cast<size_t>(LinhaDe(item.Ponto) + (deitada ? 0 : k));
            const auto coluna = static_cast<size_t>(ColunaDe(item.Ponto) + (deitada ? k : 0));
            auto &letra = letras.at(linha).at(coluna);
            auto &sentido = sentidos.at(linha).at(coluna);
            if (sentido.contains(item.Sentido) || (!letra.isEmpty() && letra != item.Palavra[k])) {
                return QStringLiteral("item %1 does not fit").arg(n);
            }
            letra = item.Palavra[k];
            sentido += item.Sentido;
        }
    }
    return jogo.tempo >= 0 && jogo.tempo < 3e9 ? QString() : QStringLiteral("time");
}

QByteArray SlotBom()
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("save.ini");
    SalvaSlot(arquivo, 4, QStringLiteral("bom"), TabuleiroDeTeste(), 300.25, QStringLiteral(","));
    return PastaDeTeste::Conteudo(arquivo);
}

QByteArray RankingBom()
{
    const PastaDeTeste pasta;
    const auto arquivo = pasta.Caminho("Ranking.dat");
    for (int p = 1; p <= kLugares; ++p) {
        GravaLugar(arquivo, p, QStringLiteral("Ana"), 100 * p);
    }
    return PastaDeTeste::Conteudo(arquivo);
}

/// A target whose reader wants a file.
Alvo AlvoDeArquivo(Alvo alvo, const std::function<QString(const QString &arquivo)> &prova)
{
    const auto pasta = std::make_shared<PastaDeTeste>();
    alvo.prova = [pasta, prova](const QByteArray &dados, Dado &) {
        return prova(pasta->Arquivo("fuzz.ini", dados));
    };
    return alvo;
}

QString ProvaSlot(const QString &arquivo)
{
    const auto lido = LeSlot(arquivo, 4);
    const auto *jogo = std::get_if<JogoSalvo>(&lido);
    return jogo ? ProvaJogo(*jogo) : QString();
}

QString ProvaRanking(const QString &arquivo)
{
    const int lugar = ProcuraLugar(arquivo, 250);
    const auto linhas = LeRanking(arquivo);
    for (size_t p = 1; p <= kLugares; ++p) {
        if (linhas[p].Nome.isEmpty() || linhas[p].Tempo.isEmpty()) {
            return QStringLiteral("empty row");
        }
    }
    return lugar >= 0 && lugar <= kLugares ? QString() : QStringLiteral("place");
}

QString ProvaBanco(const QByteArray &dados, Dado &)
{
    const auto banco = std::make_unique<BancoPerguntas>();
    CarregaRegistros(*banco, dados);
    const IndiceBanco indice(*banco);
    const bool certo =
        banco->QtdPerguntas == qMin<qsizetype>(dados.size() / kBytesRegistro, kMaxPerguntas) &&
        banco->BancoPalavra[0].isEmpty() && indice.QtdTextos() <= banco->QtdPerguntas;
    return certo ? QString() : QStringLiteral("number of entries");
}

/// A list without a fault makes a bank that gives the same list back.
QString ProvaLista(const QByteArray &dados, Dado &)
{
    const ListaPropria lista = LeLista(dados);
    if (!lista.faltas.isEmpty()) {
        return {};
    }
    const QByteArray banco = CompilaBanco(lista.entradas);
    const ListaPropria volta = LeLista(ExtraiLista(banco));
    const bool certo = banco.size() == qsizetype(lista.entradas.size()) * kBytesRegistro &&
                       PareceBanco(banco) && volta.faltas.isEmpty() &&
                       CompilaBanco(volta.entradas) == banco;
    return certo ? QString() : QStringLiteral("the list does not come back");
}

QString ProvaReg4(const QString &arquivo)
{
    RegistroPortatil armazem;
    clsRegistryAccess registro(armazem);
    registro.ImportFromReg(arquivo);
    return armazem.QtdAbertas() == 0 ? QString() : QStringLiteral("a key left open");
}

} // namespace

std::vector<Alvo> Alvos()
{
    const std::vector<QByteArray> textos = {"", "[s]\r\nk=1\r\nj=\"2\"\r\n;c\r\n\r\n[t]\r\nk=3\r\n",
                                            "x\n[S]\n k = v \n[s]\nk=w\nJ=' z '"};
    auto slotPedacos = kPedacosIni;
    for (const char *pedaco : {"\r\nPonto3=572", "\r\nPalavra1=\xC1", "\r\nSentido5=V", "99999",
                               "\r\nTempo=1e9", "-", "H", "V", "\r\nPonto7=", "\r\nTempo=nan"}) {
        slotPedacos.emplace_back(pedaco);
    }
    return {
        {"reading", textos, kPedacosIni, ProvaLeitura},
        {"writing", textos, kPedacosIni, ProvaGravacao},
        AlvoDeArquivo({"slot", {SlotBom()}, slotPedacos, {}}, ProvaSlot),
        AlvoDeArquivo({"ranking", {RankingBom()}, slotPedacos, {}}, ProvaRanking),
        {"bank",
         {QByteArray("  CASA").leftJustified(kBytesRegistro, ' ').repeated(5)},
         {" ", QByteArray(1, '\0'), QByteArray(kBytesRegistro, 'A'), "\xC7\xC3O"},
         ProvaBanco},
        {"list",
         {"casa;Lar\r\n\"rim\";\"Filtra; \"\"limpa\"\"\"\r\n",
          "\xEF\xBB\xBF"
          "# lista\nCASA\tLar\nAVO,\"A\" ou \"o\"\n"},
         {"\"", "\"\"", ";", ",", "\t", "\n", "\r", " ", "#", "\xC3\xA3", "\xCC\x83", "\xC2\xA0",
          "dica", "ovo", "\xE2\x82\xAC", "\xC5\xBF", "\xE9"},
         ProvaLista},
        AlvoDeArquivo({"reg4",
                       {"REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\a]\r\n@=\"x\"\r\n\"b\"=hex:00,FF\r\n"
                        "\"d\"=dword:0000000A\r\n\r\n[-HKEY_CURRENT_USER\\a]\r\n"},
                       {"[", "]", "\"", "=", "hex:", "dword:", "-", "\r\n", "HKLM\\x", ";", "@"},
                       {}},
                      ProvaReg4)};
}
