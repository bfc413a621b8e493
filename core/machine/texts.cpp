#include "core/machine/texts.h"

#include "core/machine/prices.h"

#include <array>

namespace texto {

namespace {

/// "dois minutos", for 1 to 10.
QString PorExtenso(int minutos)
{
    constexpr std::array<const char16_t *, 10> nomes = {
        u"um", u"dois", u"três", u"quatro", u"cinco", u"seis", u"sete", u"oito", u"nove", u"dez"};
    return QString::fromUtf16(nomes.at(static_cast<size_t>(minutos) - 1)) +
           (minutos == 1 ? QStringLiteral(" minuto") : QStringLiteral(" minutos"));
}

} // namespace

QString SocorroPergunta()
{
    return QStringLiteral("Uma letra será revelada e %1 %2 ao seu tempo")
        .arg(PorExtenso(kMinutosSocorro), kMinutosSocorro == 1
                                              ? QStringLiteral("será acrescentado")
                                              : QStringLiteral("serão acrescentados"));
}

QString SocorroDescricao()
{
    return QStringLiteral("Revela uma letra e acrescenta %1 ao seu tempo")
        .arg(PorExtenso(kMinutosSocorro));
}

QString JogoResolvido()
{
    return QStringLiteral("O jogo atual já está resolvido.\rClique em 'Novo Jogo'");
}

QString NadaASalvar()
{
    return QStringLiteral("O jogo atual já está completamente resolvido");
}

QString SemJogo()
{
    return QStringLiteral("Não há nenhum jogo no tabuleiro.\rClique em 'Novo Jogo'");
}

QString Parabens()
{
    return QStringLiteral("Parabéns !!!");
}

QString BancoIlegivel()
{
    return QStringLiteral(
        "O banco de perguntas \"Perguntas.tes\" não pôde ser lido ou está vazio.");
}

QString BancoPequeno()
{
    return QStringLiteral("O banco de perguntas não tem palavras suficientes para montar um jogo.");
}

QString PrecoDaCarga()
{
    return kMinutosCarga == 1
               ? QStringLiteral("Será acrescentado 1 minuto ao seu tempo")
               : QStringLiteral("Serão acrescentados %1 minutos ao seu tempo").arg(kMinutosCarga);
}

QString SlotDanificado()
{
    return QStringLiteral("O jogo salvo neste local está danificado e não pode ser aberto.");
}

QString SlotVazio()
{
    return QStringLiteral("Não há jogo salvo neste local");
}

QString Sobregravar(const QString &nome)
{
    return QStringLiteral("Deseja sobregravar %1?").arg(nome);
}

QString SemNome(int n)
{
    return QStringLiteral("Sem nome %1").arg(n);
}

QString SemConexao()
{
    return QStringLiteral("Não foi possível conectar ao servidor");
}

QString VersaoEmDia(const QString &titulo)
{
    return QStringLiteral("Você já está utilizando a versão mais recente do ") + titulo;
}

QString PerguntaAtualizar(const QString &local, const QString &remota)
{
    return QStringLiteral("Você está utilizando a versão %1\r\n\r\n"
                          "Deseja atualizar para a versão %2 agora?")
        .arg(local, remota);
}

QString AtualizacaoGravada(const QString &arquivo)
{
    return QStringLiteral("A atualização foi gravada em:\r\n") + arquivo;
}

QString AtualizacaoFalhou()
{
    return QStringLiteral("Não foi possível baixar a atualização");
}

} // namespace texto
