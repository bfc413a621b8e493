#include "sample_banks.h"

#include "core/files/codepage.h"
#include <random>
#include <set>

namespace {

int Ate(std::mt19937_64 &gerador, qsizetype n)
{
    return static_cast<int>(gerador() % static_cast<std::uint64_t>(n));
}

BancoPerguntas BancoDe(const QByteArray &registros)
{
    BancoPerguntas banco;
    CarregaRegistros(banco, registros);
    return banco;
}

char LetraDe(std::mt19937_64 &gerador, const QByteArray &letras)
{
    return letras[Ate(gerador, letras.size())];
}

} // namespace

QByteArray RegistrosDe(const std::vector<QByteArray> &palavras)
{
    QByteArray bytes;
    int entrada = 0;
    for (const QByteArray &palavra : palavras) {
        bytes += palavra.leftJustified(15, ' ', true);
        bytes += ("pista " + QByteArray::number(++entrada)).leftJustified(60, ' ');
        bytes += static_cast<char>(entrada % 256);
    }
    return bytes;
}

std::vector<QByteArray> PalavrasDeSilabas(int quantas, std::uint64_t semente,
                                          const ParteDosComprimentos &partes)
{
    QByteArray comprimentos;
    for (size_t k = 0; k < partes.size(); ++k) {
        comprimentos += QByteArray(partes[k], static_cast<char>(3 + k));
    }
    std::mt19937_64 gerador(semente);
    std::vector<QByteArray> palavras;
    std::set<QByteArray> vistas;
    while (palavras.size() < size_t(quantas)) {
        const auto n = static_cast<unsigned char>(LetraDe(gerador, comprimentos));
        bool vogal = Ate(gerador, 4) == 0;
        QByteArray palavra;
        while (palavra.size() < n) {
            palavra +=
                LetraDe(gerador, vogal ? "AAAAAEEEEIIIOOOOU" : "BCCDDFGJLLMMNNPPRRRRSSSTTTVZ");
            vogal = !vogal || Ate(gerador, 12) == 0;
        }
        if (vistas.insert(palavra).second) {
            palavras.push_back(palavra);
        }
    }
    return palavras;
}

std::vector<QString> LePalavrasLento(const QByteArray &registros)
{
    std::vector<QString> palavras(1);
    for (qsizetype r = 0; r < 3000 && (r + 1) * 76 <= registros.size(); ++r) {
        const QString campo = DeCodePage(registros.mid(r * 76, 15));
        qsizetype a = 0;
        qsizetype b = campo.size();
        while (a < b && campo[a] == u' ')
            ++a;
        while (b > a && campo[b - 1] == u' ')
            --b;
        palavras.push_back(campo.mid(a, b - a));
    }
    return palavras;
}

Oficina::Oficina(const QByteArray &registros) : banco(BancoDe(registros)), indice(banco) {}

DadosMontagem Oficina::Dados(Acaso &acaso, BuscaUsadas busca)
{
    return {tabuleiro, banco, indice, memoria, acaso, nada, busca};
}

bool Oficina::Tenta(Acaso &acaso, BuscaUsadas busca)
{
    ZeraTabuleiro(tabuleiro);
    return CarregaPalavras(Dados(acaso, busca)) == FimMontagem::Completa;
}

int Oficina::Monta(Acaso &acaso, BuscaUsadas busca)
{
    int falhas = 0;
    while (!Tenta(acaso, busca)) {
        ++falhas;
    }
    return falhas;
}
