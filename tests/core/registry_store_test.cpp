#include "core/registry/registry_store_portable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr ChaveRegistro kUsuario = 0x80000001;
using Codigo = CodigoRegistro;

/// A key of its own in the store of the system, or in the portable one, gone when the test ends.
class Armazem : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        armazem = GetParam() ? AbreRegistroDoSistema({}) : std::make_unique<RegistroPortatil>();
        pasta =
            "Software\\Quadrelo-teste-" + QByteArray::number(QCoreApplication::applicationPid());
        ASSERT_EQ(armazem->RegCreateKeyA(kUsuario, pasta, base), Codigo::Sucesso);
    }

    void TearDown() override
    {
        QByteArray nome;
        while (armazem->RegEnumKeyExA(base, 0, 255, nome) == Codigo::Sucesso) {
            ASSERT_EQ(armazem->RegDeleteKeyA(base, nome), Codigo::Sucesso);
        }
        armazem->RegCloseKey(base);
        EXPECT_EQ(armazem->RegDeleteKeyA(kUsuario, pasta), Codigo::Sucesso);
    }

    Codigo Abre(const QByteArray &sub, std::uint32_t acesso, ChaveRegistro &chave)
    {
        return armazem->RegOpenKeyExA(base, sub, acesso, chave);
    }

    std::unique_ptr<ArmazemRegistro> armazem;
    QByteArray pasta;
    ChaveRegistro base = 0;
};

INSTANTIATE_TEST_SUITE_P(PortatilEDoSistema, Armazem, testing::Bool());

} // namespace

TEST_P(Armazem, FindsAndListsKeysWithoutRegardToCase)
{
    ChaveRegistro chave = 0;
    for (const char *nome : {"Ação", "beta", "Alfa"}) {
        ASSERT_EQ(armazem->RegCreateKeyA(base, QString::fromUtf8(nome).toLatin1(), chave),
                  Codigo::Sucesso);
        armazem->RegCloseKey(chave);
    }
    ASSERT_EQ(Abre("A\xC7\xC3O", kAcessoLeitura, chave), Codigo::Sucesso);
    armazem->RegCloseKey(chave);
    EXPECT_EQ(Abre("acao", kAcessoLeitura, chave), Codigo::NaoAchado);

    QByteArray nome;
    int quantos = 0;
    while (armazem->RegEnumKeyExA(base, static_cast<std::uint32_t>(quantos), 255, nome) ==
           Codigo::Sucesso) {
        EXPECT_TRUE(nome == "A\xE7\xE3o" || nome == "beta" || nome == "Alfa") << nome.toStdString();
        ++quantos;
    }
    EXPECT_EQ(quantos, 3);
    EXPECT_EQ(armazem->RegEnumKeyExA(base, 3, 255, nome), Codigo::FimDaLista);
    EXPECT_EQ(armazem->RegEnumKeyExA(base, 0, 3, nome), Codigo::MaisDados);
}

TEST_P(Armazem, HandsOutValuesAsFarAsThereIsRoom)
{
    const QByteArray dados("\x00\xFF=\"\r\n", 6);
    ASSERT_EQ(armazem->RegSetValueExA(base, "Valor", kTipoBinario, dados), Codigo::Sucesso);
    DadosRegistro lido;
    EXPECT_EQ(armazem->RegQueryValueExA(base, "VALOR", 6, lido), Codigo::Sucesso);
    EXPECT_EQ(lido.dados, dados);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "valor", 5, lido), Codigo::MaisDados);
    EXPECT_EQ(lido.tamanho, 6U);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "valor", std::nullopt, lido), Codigo::Sucesso);
    EXPECT_EQ(lido.tipo, kTipoBinario);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "outro", std::nullopt, lido), Codigo::NaoAchado);

    ValorEnumerado valor;
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {6, 6}, valor), Codigo::Sucesso);
    EXPECT_EQ(valor.conteudo.dados, dados);
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {6, 5}, valor), Codigo::MaisDados);
    EXPECT_EQ(valor.nome, QByteArray("Valor"));
    EXPECT_EQ(armazem->RegEnumValueA(base, 0, {5, 6}, valor), Codigo::MaisDados);
    EXPECT_FALSE(valor.nome.has_value());
    EXPECT_EQ(armazem->RegEnumValueA(base, 1, {6, 6}, valor), Codigo::FimDaLista);

    EXPECT_EQ(armazem->RegSetValueExA(base, "Vazio", kTipoBinario, {}), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegQueryValueExA(base, "Vazio", 0, lido), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegDeleteValueA(base, "VALOR"), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegDeleteValueA(base, "valor"), Codigo::NaoAchado);
}

TEST_P(Armazem, RefusesWhatTheHandleHasNoRightTo)
{
    ChaveRegistro leitura = 0;
    ChaveRegistro escrita = 0;
    DadosRegistro lido;
    ASSERT_EQ(Abre({}, kAcessoLeitura, leitura), Codigo::Sucesso);
    ASSERT_EQ(Abre({}, kAcessoEscrita, escrita), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegSetValueExA(leitura, "a", kTipoTexto, "x"), Codigo::AcessoNegado);
    EXPECT_EQ(armazem->RegSetValueExA(escrita, "a", kTipoTexto, "x"), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegDeleteValueA(leitura, "a"), Codigo::AcessoNegado);
    EXPECT_EQ(armazem->RegQueryValueExA(escrita, "a", 10, lido), Codigo::AcessoNegado);
    EXPECT_EQ(armazem->RegQueryValueExA(leitura, "a", 10, lido), Codigo::Sucesso);
    armazem->RegCloseKey(leitura);
    armazem->RegCloseKey(escrita);
    EXPECT_EQ(armazem->RegQueryValueExA(0, "a", 10, lido), Codigo::ChaveInvalida);
}

TEST_P(Armazem, DeletesNoKeyThatHasSubkeys)
{
    ChaveRegistro chave = 0;
    ASSERT_EQ(armazem->RegCreateKeyA(base, "pai\\filho", chave), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "pai"), Codigo::AcessoNegado);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "PAI\\FILHO"), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegSetValueExA(chave, "a", kTipoTexto, "x"), Codigo::ChaveApagada);
    armazem->RegCloseKey(chave);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "pai"), Codigo::Sucesso);
    EXPECT_EQ(armazem->RegDeleteKeyA(base, "pai"), Codigo::NaoAchado);
}

namespace {

/// All names below the user's root, keys and values, in their order.
QByteArray Conteudo(RegistroPortatil &armazem, const QByteArray &sub = {})
{
    ChaveRegistro chave = 0;
    armazem.RegOpenKeyA(kUsuario, sub, chave);
    QByteArray texto = sub + '{';
    ValorEnumerado valor;
    for (std::uint32_t k = 0; armazem.RegEnumValueA(chave, k, {99, 99}, valor) == Codigo::Sucesso;
         ++k) {
        texto += *valor.nome + ':' + QByteArray::number(valor.conteudo.tipo) +
                 valor.conteudo.dados + ' ';
    }
    QByteArray nome;
    for (std::uint32_t k = 0; armazem.RegEnumKeyExA(chave, k, 255, nome) == Codigo::Sucesso; ++k) {
        texto += Conteudo(armazem, sub.isEmpty() ? nome : sub + '\\' + nome);
    }
    armazem.RegCloseKey(chave);
    return texto + '}';
}

void Grava(RegistroPortatil &armazem, const QByteArray &sub, const QByteArray &nome,
           const QByteArray &dados)
{
    ChaveRegistro chave = 0;
    ASSERT_EQ(armazem.RegCreateKeyA(kUsuario, sub, chave), Codigo::Sucesso);
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
    EXPECT_EQ(Conteudo(armazem), "{c:7c a:7a b:7b c{v:71 }a{v:71 }b{v:71 }}");
    ChaveRegistro chave = 0;
    armazem.RegOpenKeyA(kUsuario, {}, chave);
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
    EXPECT_EQ(armazem.RegCreateKeyA(kUsuario, QByteArray("a\\").repeated(513), chave),
              Codigo::ParametroInvalido);
    EXPECT_EQ(armazem.RegCreateKeyA(kUsuario, "a\\" + QByteArray(256, 'n'), chave),
              Codigo::ParametroInvalido);
    EXPECT_EQ(armazem.RegSetValueExA(kUsuario, QByteArray(16384, 'n'), 1, {}),
              Codigo::ParametroInvalido);
    EXPECT_EQ(Conteudo(armazem), "{}");
    EXPECT_EQ(armazem.RegCreateKeyA(kUsuario, QByteArray("a\\").repeated(512), chave),
              Codigo::Sucesso);
    EXPECT_EQ(armazem.RegCreateKeyA(chave, "a", chave), Codigo::ParametroInvalido);
}

TEST(RegistroPortatil, ReadsBackTheFileThatItSaved)
{
    const QTemporaryDir pasta;
    const QString arquivo = pasta.filePath(QStringLiteral("João.reg"));
    QByteArray antes;
    {
        RegistroPortatil armazem(arquivo);
        Grava(armazem, "b\\a\xE7\xE3o", QByteArray(), QByteArray("\0\n \xFF", 4));
        Grava(armazem, "b", "nome com brancos", QByteArray());
        Grava(armazem, "a", "v", "1");
        EXPECT_TRUE(armazem.Salva());
        Grava(armazem, "ultima", "v", "salva no fim");
        antes = Conteudo(armazem);
    }
    RegistroPortatil depois(arquivo);
    EXPECT_EQ(Conteudo(depois), antes);
    RegistroPortatil semPasta(pasta.filePath(QStringLiteral("falta/x")));
    Grava(semPasta, "a", "v", "1");
    EXPECT_FALSE(semPasta.Salva());
}

TEST(RegistroPortatil, ReadsWhatIsLeftOfADamagedFile)
{
    const QTemporaryDir pasta;
    const QString nome = pasta.filePath(QStringLiteral("r"));
    {
        RegistroPortatil armazem(nome);
        Grava(armazem, "a", "v", "11");
        Grava(armazem, "b", "v", "22");
        Grava(armazem, "b", "w", "33");
    }
    QFile salvo(nome);
    ASSERT_TRUE(salvo.open(QIODevice::ReadOnly));
    const QByteArray inteiro = salvo.readAll();
    salvo.close();
    const auto leDanificado = [&](const QByteArray &bytes) {
        QFile arquivo(nome);
        EXPECT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write(bytes);
        arquivo.close();
        RegistroPortatil armazem(nome);
        return Conteudo(armazem);
    };
    EXPECT_EQ(leDanificado(inteiro), "{a{v:711 }b{v:722 w:733 }}");
    // Without the key's line its values must not become those of the key before.
    EXPECT_EQ(leDanificado(QByteArray(inteiro).replace("K 1 62 .", "K 1 6g .")), "{a{v:711 }}");
    EXPECT_EQ(leDanificado(QByteArray(inteiro).replace("K 1 62 .", "J 1 62 .")), "{a{v:711 }}");
    EXPECT_EQ(leDanificado(QByteArray(inteiro).replace("3232", "323")), "{a{v:711 }b{w:733 }}");
    EXPECT_EQ(leDanificado("\n\n" + QByteArray("K 9 62 .\nV 1 61 61 .\nK\nV\n \n") + inteiro),
              "{a{v:711 }b{v:722 w:733 }}");
    // Cut off anywhere, each value is read whole or not at all.
    for (qsizetype fim = 0; fim < inteiro.size(); ++fim) {
        const QByteArray lido = leDanificado(inteiro.first(fim));
        EXPECT_EQ(lido.count("v:7") + lido.count("w:7"),
                  lido.count("v:711 ") + lido.count("v:722 ") + lido.count("w:733 "))
            << fim;
    }
}
