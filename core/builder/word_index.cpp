#include "core/builder/word_index.h"

#include <algorithm>

namespace {

constexpr size_t kCaracteres = 0x10000;
constexpr int kMenorPrimeira = 5;

} // namespace

IndiceBanco::IndiceBanco(const BancoPerguntas &banco)
    : m_comprimento(static_cast<size_t>(banco.QtdPerguntas) + 1),
      m_texto(m_comprimento.size()),
      m_posicoes(1, std::vector<std::uint8_t>(m_comprimento.size())),
      m_linhaDaLetra(kCaracteres)
{
    for (size_t k = 1; k < m_comprimento.size(); ++k) {
        const QString &palavra = banco.BancoPalavra[k];
        m_comprimento[k] = static_cast<std::uint8_t>(palavra.size());
        const int novo = QtdTextos();
        m_texto[k] = static_cast<std::int16_t>(
            *m_numeroDoTexto.insert(palavra, m_numeroDoTexto.value(palavra, novo)));
        m_serve = m_serve || palavra.size() >= kMenorPrimeira;
        AnotaLetras(palavra, k);
    }
}

void IndiceBanco::AnotaLetras(const QString &palavra, size_t k)
{
    for (qsizetype q = 0; q < palavra.size(); ++q) {
        auto &linha = m_linhaDaLetra[palavra[q].unicode()];
        if (linha == 0) {
            linha = static_cast<std::uint16_t>(m_posicoes.size());
            m_posicoes.emplace_back(m_comprimento.size());
        }
        auto &posicao = m_posicoes[linha][k];
        posicao = posicao == 0 ? static_cast<std::uint8_t>(q + 1) : posicao;
    }
}

const std::uint8_t *IndiceBanco::PrimeirasPosicoes(QChar letra) const
{
    return m_posicoes[m_linhaDaLetra[letra.unicode()]].data();
}

const std::vector<std::uint8_t> &IndiceBanco::MarcasDe(const MemoriaUsadas &memoria) const
{
    const auto mesma = [](const QString &a, const QString &b) {
        return a.constData() == b.constData() || (a.isEmpty() && b.isEmpty());
    };
    const auto fim = static_cast<std::ptrdiff_t>(memoria.QtdUsadas) + 1;
    const auto usadas = memoria.PalavrasUsadas.begin();
    if (!m_marcas.empty() && memoria.QtdUsadas == m_memoriaDasMarcas.QtdUsadas &&
        std::equal(usadas, usadas + fim, m_memoriaDasMarcas.PalavrasUsadas.begin(), mesma)) {
        return m_marcas;
    }
    m_memoriaDasMarcas = memoria;
    std::vector<std::uint8_t> textos(static_cast<size_t>(QtdTextos()));
    std::for_each(usadas, usadas + fim, [this, &textos](const QString &palavra) {
        if (const int texto = ProcuraTexto(palavra); texto >= 0) {
            textos[static_cast<size_t>(texto)] = 1;
        }
    });
    m_marcas.assign(m_texto.size(), 0);
    for (size_t k = 1; k < m_texto.size(); ++k) {
        m_marcas[k] = textos[static_cast<size_t>(m_texto[k])];
    }
    return m_marcas;
}

MarcasUsadas::MarcasUsadas(const IndiceBanco &indice, MemoriaUsadas &memoria) : m_indice(&indice)
{
    memoria.QtdUsadas = std::min(memoria.QtdUsadas, kUsadas);
    m_usada = indice.MarcasDe(memoria);
}

void MarcasUsadas::Marca(int k)
{
    m_usada[static_cast<size_t>(k)] = 1;
    const auto entradas = static_cast<int>(m_usada.size());
    if (m_indice->QtdTextos() == entradas - 1) {
        return;
    }
    for (int outra = 1; outra < entradas; ++outra) {
        if (m_indice->TextoDe(outra) == m_indice->TextoDe(k)) {
            m_usada[static_cast<size_t>(outra)] = 1;
        }
    }
}
