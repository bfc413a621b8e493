#include "core/files/ini_text.h"

#include <QByteArrayView>

namespace {

enum class TipoDeLinha { Vazia, Comentario, Cabecalho, Chave };

/// What a line says. `nome` is the section's or the key's name, `valor` all behind the first "=".
/// Both look into the line's own bytes.
struct LinhaLida
{
    TipoDeLinha tipo = TipoDeLinha::Vazia;
    QByteArrayView nome;
    QByteArrayView valor;
};

bool Branco(char letra)
{
    return letra == ' ' || letra == '\t';
}

bool FimDeLinha(char letra)
{
    return letra == '\r' || letra == '\n';
}

QByteArrayView SemBrancosAntes(QByteArrayView texto)
{
    while (!texto.isEmpty() && Branco(texto.front())) {
        texto = texto.sliced(1);
    }
    return texto;
}

QByteArrayView SemBrancos(QByteArrayView texto)
{
    while (!texto.isEmpty() && Branco(texto.back())) {
        texto.chop(1);
    }
    return SemBrancosAntes(texto);
}

QByteArrayView AteNul(QByteArrayView texto)
{
    const auto nul = texto.indexOf('\0');
    return nul < 0 ? texto : texto.first(nul);
}

/// A name as the indexes have it.
QByteArray NoIndice(QByteArrayView nome)
{
    return nome.toByteArray().toLower();
}

/// An argument of a read or a write as the name that it stands for.
QByteArray NomePedido(QByteArrayView argumento)
{
    return NoIndice(SemBrancos(AteNul(argumento)));
}

/// The same as written into a file: what stands before a name goes, what stands behind it stays.
QByteArray NomeEscrito(QByteArrayView argumento)
{
    return SemBrancosAntes(AteNul(argumento)).toByteArray();
}

QByteArrayView SemFim(QByteArrayView linha)
{
    while (!linha.isEmpty() && FimDeLinha(linha.back())) {
        linha.chop(1);
    }
    return linha;
}

LinhaLida LeLinha(QByteArrayView linha)
{
    const auto texto = SemBrancos(SemFim(linha));
    if (texto.isEmpty()) {
        return {};
    }
    if (texto.front() == ';') {
        return {TipoDeLinha::Comentario, {}, {}};
    }
    const auto fecho = texto.front() == '[' ? texto.indexOf(']') : -1;
    if (fecho > 0) {
        return {TipoDeLinha::Cabecalho, AteNul(SemBrancos(texto.sliced(1, fecho - 1))), {}};
    }
    const auto igual = texto.indexOf('=');
    if (igual < 0) {
        return {TipoDeLinha::Chave, AteNul(texto), {}};
    }
    return {TipoDeLinha::Chave, AteNul(SemBrancos(texto.first(igual))), texto.sliced(igual + 1)};
}

QByteArrayView SemAspas(QByteArrayView texto)
{
    const bool aspas = texto.size() >= 2 && texto.front() == texto.back() &&
                       (texto.front() == '"' || texto.front() == '\'');
    return aspas ? texto.sliced(1, texto.size() - 2) : texto;
}

/// One past the end of the line that begins at `inicio`, its end included.
qsizetype FimDaLinha(QByteArrayView bytes, qsizetype inicio)
{
    auto fim = inicio;
    while (fim < bytes.size() && !FimDeLinha(bytes[fim])) {
        ++fim;
    }
    const bool par = fim + 1 < bytes.size() && bytes[fim] == '\r' && bytes[fim + 1] == '\n';
    return qMin(bytes.size(), fim + (par ? 2 : 1));
}

/// Whether a line that was put together reads as one line of type `tipo` with the name `nome`. It
/// does not where a name or a value holds line ends, "=" or "]".
bool LeComoEscrita(const QByteArray &linha, TipoDeLinha tipo, const QByteArray &nome)
{
    const auto lida = LeLinha(linha);
    return FimDaLinha(linha, 0) == linha.size() && lida.tipo == tipo && NoIndice(lida.nome) == nome;
}

} // namespace

TextoIni::TextoIni(const QByteArray &bytes) : m_secoes(1)
{
    for (qsizetype inicio = 0; inicio < bytes.size();) {
        const auto fim = FimDaLinha(bytes, inicio);
        AcolheLinha(bytes.sliced(inicio, fim - inicio));
        inicio = fim;
    }
}

void TextoIni::AcolheLinha(const QByteArray &linha)
{
    const auto lida = LeLinha(linha);
    const auto nome = NoIndice(lida.nome);
    if (lida.tipo == TipoDeLinha::Cabecalho) {
        if (!m_indice.contains(nome)) {
            m_indice.insert(nome, m_secoes.size());
        }
        m_secoes.emplace_back().fimDasChaves = 1;
    }
    Secao &secao = m_secoes.back();
    secao.linhas.push_back(linha);
    if (lida.tipo != TipoDeLinha::Chave) {
        return;
    }
    if (!secao.chaves.contains(nome)) {
        secao.chaves.insert(nome, secao.linhas.size() - 1);
    }
    secao.fimDasChaves = secao.linhas.size();
}

QByteArray TextoIni::Valor(const QByteArray &secao, const QByteArray &chave) const
{
    const auto achada = m_indice.constFind(NomePedido(secao));
    if (achada == m_indice.constEnd()) {
        return {};
    }
    const Secao &lugar = m_secoes[*achada];
    const auto linha = lugar.chaves.constFind(NomePedido(chave));
    if (linha == lugar.chaves.constEnd()) {
        return {};
    }
    const auto valor = SemAspas(AteNul(SemBrancos(LeLinha(lugar.linhas[*linha]).valor)));
    return valor.first(qMin<qsizetype>(valor.size(), kMaximoDoValor)).toByteArray();
}

void TextoIni::Escreve(const QByteArray &secao, const QByteArray &chave, const QByteArray &valor)
{
    TerminaUltimaLinha();
    Secao &lugar = SecaoParaEscrever(secao);
    const auto nome = NomePedido(chave);
    const auto achada = lugar.chaves.constFind(nome);
    const bool nova = achada == lugar.chaves.constEnd();
    const auto posicao = nova ? lugar.fimDasChaves : *achada;
    const auto grafia =
        nova ? NomeEscrito(chave) : LeLinha(lugar.linhas[posicao]).nome.toByteArray();
    const QByteArray linha = grafia + '=' + AteNul(valor).toByteArray() + "\r\n";
    if (nova) {
        lugar.linhas.insert(lugar.linhas.begin() + static_cast<std::ptrdiff_t>(posicao), linha);
        lugar.chaves.insert(nome, posicao);
        ++lugar.fimDasChaves;
    } else {
        lugar.linhas[posicao] = linha;
    }
    if (!LeComoEscrita(linha, TipoDeLinha::Chave, nome) ||
        !LeComoEscrita(lugar.linhas.front(), TipoDeLinha::Cabecalho, NomePedido(secao))) {
        *this = TextoIni(Bytes());
    }
}

TextoIni::Secao &TextoIni::SecaoParaEscrever(const QByteArray &secao)
{
    const auto nome = NomePedido(secao);
    const auto achada = m_indice.constFind(nome);
    if (achada != m_indice.constEnd()) {
        return m_secoes[*achada];
    }
    m_secoes.emplace_back();
    m_secoes.back().linhas.push_back('[' + NomeEscrito(secao) + "]\r\n");
    m_secoes.back().fimDasChaves = 1;
    m_indice.insert(nome, m_secoes.size() - 1);
    return m_secoes.back();
}

void TextoIni::TerminaUltimaLinha()
{
    auto &linhas = m_secoes.back().linhas;
    if (!linhas.empty() && !FimDeLinha(linhas.back().back())) {
        linhas.back().append("\r\n");
    }
}

QByteArray TextoIni::Bytes() const
{
    QByteArray bytes;
    for (const auto &secao : m_secoes) {
        for (const auto &linha : secao.linhas) {
            bytes.append(linha);
        }
    }
    return bytes;
}
