#include "core/registry/registry_store_portable.h"

#include <gtest/gtest.h>

#include "tests/core/test_files.h"
#include <QCoreApplication>

namespace {

using enum CodigoRegistro;
constexpr ChaveRegistro kUsuario = 0x80000001;

/// A key of its own in the store of the system, or in the portable one, gone when the test ends.
class Armazem : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        armazem = GetParam() ? AbreRegistroDoSistema({}) : std::make_unique<RegistroPortatil>();
        pasta =
            "Software\\Quadrelo-teste-" + QByteArray::number(QCoreApplication::applicationPid());
        ASSERT_EQ(armazem->RegCreateKeyA(kUsuario, pasta, base), Sucesso);
    }

    void TearDown() override
    {
        armazem->RegCloseKey(base);
        EXPECT_EQ(armazem->RegDeleteKeyA(kUsuario, pasta), Sucesso);
    }

    std::unique_ptr<ArmazemRegistro> armazem;
    QByteArray pasta;
    ChaveRegistro base = 0;
};

INSTANTIATE_TEST_SUITE_P(PortatilEDoSistema, Armazem, testing::Bool());

} // namespace

TEST_P(Armazem, FindsListsAndDeletesKeysWithoutRegardToCase)
{
    ChaveRegistro chave = 0;
    QByteArray nome;
    ASSERT_EQ(armazem->RegCreateKeyA(base, "A\xE7\xE3o\\filho", chave), Sucesso);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "A\xE7\xE3o"), AcessoNegado) << "it has a subkey";
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "A\xC7\xC3O\\FILHO"), Sucesso);
    EXPECT_EQ(armazem->RegSetValueExA(chave, "a", kTipoTexto, "x"), ChaveApagada);
    EXPECT_EQ(armazem->RegCloseKey(chave), Sucesso);
    EXPECT_EQ(armazem->RegOpenKeyExA(base, "acao", kAcessoLeitura, chave), NaoAchado);
    EXPECT_EQ(armazem->RegEnumKeyExA(base, 0, 5, nome), Sucesso);
    EXPECT_EQ(nome, "A\xE7\xE3o");
    EXPECT_EQ(armazem->RegEnumKeyExA(base, 0, 4, nome), MaisDados);
    EXPECT_EQ(armazem->RegEnumKeyExA(base, 1, 5, nome), FimDaLista);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "A\xC7\xE3O"), Sucesso);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "A\xC7\xE3O"), NaoAchado);
}

TEST_P(Armazem, HandsOutValuesAsFarAsThereIsRoom)
{
    const QByteArray dados("\x00\xFF=\"\r\n", 6);
    ASSERT_EQ(armazem->RegSetValueExA(base, "Valor", kTipoBinario, dados), Sucesso);
    DadosRegistro lido;
    EXPECT_EQ(armazem->RegQueryValueExA(base, "valor", 5, lido), MaisDados);
    EXPECT_EQ(lido.tamanho, 6U);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "valor", std::nullopt, lido), Sucesso);
    EXPECT_EQ(lido.tipo, kTipoBinario);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "outro", std::nullopt, lido), NaoAchado);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "VALOR", 6, lido), Sucesso);
    EXPECT_EQ(lido.dados, dados);

    ValorEnumerado valor;
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {6, 6}, valor), Sucesso);
    EXPECT_EQ(valor.conteudo.dados, dados);
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {6, 5}, valor), MaisDados);
    EXPECT_EQ(valor.nome, QByteArray("Valor"));
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {5, 6}, valor), MaisDados);
    EXPECT_FALSE(valor.nome.has_value());
    EXPECT_EQ(armazem->RegEnumValueA(base, 1, {6, 6}, valor), FimDaLista);
    EXPECT_EQ(armazem->RegDeleteValueA(base, "VALOR"), Sucesso);
    EXPECT_EQ(armazem->RegDeleteValueA(base, "valor"), NaoAchado);
}

TEST_P(Armazem, RefusesWhatTheHandleHasNoRightTo)
{
    ChaveRegistro leitura = 0;
    ChaveRegistro escrita = 0;
    DadosRegistro lido;
    ASSERT_EQ(armazem->RegOpenKeyExA(base, {}, kAcessoLeitura, leitura), Sucesso);
    ASSERT_EQ(armazem->RegOpenKeyExA(base, {}, kAcessoEscrita, escrita), Sucesso);
    EXPECT_EQ(armazem->RegSetValueExA(leitura, "a", kTipoTexto, "x"), AcessoNegado);
    EXPECT_EQ(armazem->RegSetValueExA(escrita, "a", kTipoTexto, "x"), Sucesso);
    EXPECT_EQ(armazem->RegDeleteValueA(leitura, "a"), AcessoNegado);
    EXPECT_EQ(armazem->RegQueryValueExA(escrita, "a", 10, lido), AcessoNegado);
    EXPECT_EQ(armazem->RegQueryValueExA(leitura, "a", 10, lido), Sucesso);
    armazem->RegCloseKey(leitura);
    armazem->RegCloseKey(escrita);
    EXPECT_EQ(armazem->RegQueryValueExA(0, "a", 10, lido), ChaveInvalida);
}

namespace {

/// All names below the user's root, keys and values, in their order.
QByteArray Conteudo(RegistroPortatil &armazem, const QByteArray &sub = {})
{
    ChaveRegistro chave = 0;
    armazem.RegOpenKeyA(kUsuario, sub, chave);
    QByteArray texto = sub + '{';
    ValorEnumerado v;
    for (std::uint32_t k = 0; armazem.RegEnumValueA(chave, k, {99, 99}, v) == Sucesso; ++k) {
        texto += *v.nome + ':' + QByteArray::number(v.conteudo.tipo) + v.conteudo.dados + ' ';
    }
    QByteArray nome;
    for (std::uint32_t k = 0; armazem.RegEnumKeyExA(chave, k, 255, nome) == Sucesso; ++k) {
        texto += Conteudo(armazem, sub.isEmpty() ? nome : sub + '\\' + nome);
    }
    armazem.RegCloseKey(chave);
    return texto + '}';
}

void Grava(RegistroPortatil &armazem, const QByteArray &sub, const QByteArray &nome,
           const QByteArray &dados)
{
    ChaveRegistro chave = 0;
    ASSERT_EQ(armazem.RegCreateKeyA(kUsuario, sub, chave), Sucesso);
    armazem.RegSetValueExA(chave, nome, 7, dados);
    armazem.RegCloseKey(chave);
}

} // namespace

TEST(RegistroPortatil, KeepsTheOrderOfComingThroughRemovals)
{
    RegistroPortatil armazem;
    for (const char *nome : {"c", "a", "b"}) {
        Grava(armazem, nome, "v", "1");
        Grava(armazem, {}, nome, nome);
    }
    ChaveRegistro chave = 0;
    armazem.RegOpenKeyA(kUsuario, {}, chave);
    EXPECT_EQ(armazem.RegDeleteKeyA(chave, {}), AcessoNegado) << "a root";
    armazem.RegDeleteKeyA(chave, "A");
    armazem.RegDeleteValueA(chave, "A");
    armazem.RegSetValueExA(chave, "C", 7, "z");
    Grava(armazem, "a", "v", "2");
    EXPECT_EQ(Conteudo(armazem), "{c:7z b:7b c{v:71 }b{v:71 }a{v:72 }}");
    EXPECT_EQ(armazem.QtdAbertas(), 1);
}

TEST(RegistroPortatil, HoldsNoNameTooLongAndNoTreeTooDeep)
{
    RegistroPortatil armazem;
    ChaveRegistro chave = 0;
    const auto cria = [&](ChaveRegistro base, const QByteArray &sub) {
        return armazem.RegCreateKeyA(base, sub, chave);
    };
    EXPECT_EQ(cria(kUsuario, QByteArray("a\\").repeated(513)), ParametroInvalido);
    EXPECT_EQ(cria(kUsuario, "a\\" + QByteArray(256, 'n')), ParametroInvalido);
    EXPECT_EQ(armazem.RegSetValueExA(kUsuario, QByteArray(16384, 'n'), 1, {}), ParametroInvalido);
    EXPECT_EQ(Conteudo(armazem), "{}");
    EXPECT_EQ(armazem.RegSetValueExA(kUsuario, QByteArray(16383, 'n'), 1, {}), Sucesso);
    EXPECT_EQ(cria(kUsuario, QByteArray(255, 'n')), Sucesso);
    EXPECT_EQ(cria(kUsuario, QByteArray("a\\").repeated(512)), Sucesso);
    EXPECT_EQ(cria(chave, "a"), ParametroInvalido);
}

TEST(RegistroPortatil, ReadsBackItsFileAndWhatIsLeftOfADamagedOne)
{
    const PastaDeTeste pasta;
    QByteArray antes;
    {
        RegistroPortatil armazem(pasta.Caminho("João.reg"));
        Grava(armazem, "a\xE7\xE3o\\b", QByteArray(), QByteArray("\0\n \xFF", 4));
        Grava(armazem, "b", "com brancos", QByteArray());
        ChaveRegistro b = 0;
        armazem.RegOpenKeyA(kUsuario, "b", b);
        armazem.RegSetValueExA(b, "sai", 7, "1");
        EXPECT_TRUE(armazem.Salva());
        armazem.RegDeleteValueA(b, "sai");
        EXPECT_TRUE(armazem.Salva());
        armazem.RegSetValueExA(b, "v", 7, "22"); // saved at the end
        antes = Conteudo(armazem);
        RegistroPortatil semPasta(pasta.Caminho("falta/x"));
        Grava(semPasta, "a", "v", "1");
        EXPECT_FALSE(semPasta.Salva());
    }
    const QByteArray inteiro = pasta.Conteudo(pasta.Caminho("João.reg"));
    const auto le = [&](const QByteArray &bytes) {
        RegistroPortatil armazem(pasta.Arquivo("r.reg", bytes));
        return Conteudo(armazem);
    };
    EXPECT_EQ(le(inteiro), antes);
    EXPECT_EQ(le("\n\n" + QByteArray("K 9 62 .\nV 1 61 61 .\nK\nV\n \n") + inteiro), antes);
    EXPECT_EQ(le(QByteArray(inteiro).replace("3232", "323")), antes.replace("v:722 ", ""));
    // Without the key's line its values must not become those of the key before.
    for (const char *dano : {"K 1 6g .", "J 1 62 .", "K x 62 .", "K 1 62"}) {
        EXPECT_EQ(le(QByteArray(inteiro).replace("K 1 62 .", dano)),
                  antes.first(antes.indexOf("b{com")) + '}');
    }
    // Cut off anywhere, each value is read whole or not at all.
    for (qsizetype fim = 0; fim < inteiro.size(); ++fim) {
        const QByteArray lido = le(inteiro.first(fim));
        EXPECT_EQ(lido.count("v:7"), lido.count("v:722 ")) << fim;
    }
}
