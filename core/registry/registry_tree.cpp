#include "core/registry/registry_tree.h"

#include "core/files/codepage.h"

namespace {

constexpr char kCabecalho[] = "Quadrelo-Registro 1\n";
/// An empty field, since fields are parted by blanks; and the last field, which a line cut short
/// lacks.
constexpr char kCampoVazio[] = "-";
constexpr char kFimDaLinha[] = ".";

/// For each byte the byte of its capital letter, where the code page has one.
std::array<char, 256> MontaTabelaDeDobra()
{
    std::array<char, 256> tabela{};
    for (std::size_t byte = 0; byte < tabela.size(); ++byte) {
        const char original = static_cast<char>(byte);
        const QString maiuscula(DeCodePage(QByteArray(1, original))[0].toUpper());
        tabela[byte] = CabeNoCodePage(maiuscula) ? ParaCodePage(maiuscula)[0] : original;
    }
    return tabela;
}

QByteArray AteONul(const QByteArray &bytes)
{
    const auto nul = bytes.indexOf('\0');
    return nul < 0 ? bytes : bytes.first(nul);
}

/// The key names of a path; none of them if the tree could never hold it.
std::optional<QList<QByteArray>> PartesDoCaminho(const QByteArray &sub)
{
    QList<QByteArray> partes;
    const QByteArray caminho = AteONul(sub);
    for (qsizetype inicio = 0; inicio < caminho.size();) {
        auto fim = caminho.indexOf('\\', inicio);
        fim = fim < 0 ? caminho.size() : fim;
        if (fim - inicio > kNomeDeChaveMaximo || partes.size() > kNiveisMaximos) {
            return std::nullopt;
        }
        if (fim > inicio) {
            partes.append(caminho.sliced(inicio, fim - inicio));
        }
        inicio = fim + 1;
    }
    return partes;
}

QByteArray Campo(const QByteArray &bytes)
{
    return bytes.isEmpty() ? QByteArray(kCampoVazio) : bytes.toHex();
}

std::optional<QByteArray> LeCampo(const QByteArray &campo)
{
    if (campo == kCampoVazio) {
        return QByteArray();
    }
    QByteArray bytes = QByteArray::fromHex(campo);
    // fromHex passes over what is no digit; a field with such a thing in it is damaged.
    if (bytes.isEmpty() || bytes.toHex() != campo) {
        return std::nullopt;
    }
    return bytes;
}

void EscreveNo(NoRegistro &no, const QByteArray &raiz, const QByteArray &caminho, QByteArray &saida)
{
    saida += "K " + raiz + ' ' + Campo(caminho) + ' ' + kFimDaLinha + '\n';
    for (std::size_t k = 0; k < no.valores.Tamanho(); ++k) {
        const ValorGuardado &valor = *no.valores.NoIndice(k);
        saida += "V " + QByteArray::number(valor.tipo) + ' ' + Campo(valor.nome) + ' ' +
                 Campo(valor.dados) + ' ' + kFimDaLinha + '\n';
    }
    for (std::size_t k = 0; k < no.chaves.Tamanho(); ++k) {
        NoRegistro &filho = **no.chaves.NoIndice(k);
        EscreveNo(filho, raiz, caminho.isEmpty() ? filho.nome : caminho + '\\' + filho.nome, saida);
    }
}

std::shared_ptr<NoRegistro> LeLinhaDeChave(const QList<QByteArray> &campos,
                                           const std::vector<std::shared_ptr<NoRegistro>> &raizes)
{
    if (campos.size() != 4 || campos[0] != "K" || campos[3] != kFimDaLinha) {
        return nullptr;
    }
    bool numero = false;
    const auto raiz = campos[1].toUInt(&numero);
    const auto caminho = LeCampo(campos[2]);
    return numero && raiz < raizes.size() && caminho ? CriaNo(raizes[raiz], *caminho) : nullptr;
}

void LeLinhaDeValor(const QList<QByteArray> &campos, NoRegistro &no)
{
    if (campos.size() != 5 || campos[4] != kFimDaLinha) {
        return;
    }
    bool numero = false;
    const std::uint32_t tipo = campos[1].toUInt(&numero);
    const auto nome = LeCampo(campos[2]);
    const auto dados = LeCampo(campos[3]);
    if (numero && nome && dados) {
        GuardaValor(no, *nome, tipo, *dados);
    }
}

} // namespace

QByteArray DobraNome(const QByteArray &nome)
{
    static const std::array<char, 256> tabela = MontaTabelaDeDobra();
    QByteArray dobrado = AteONul(nome);
    for (char &letra : dobrado) {
        letra = tabela[static_cast<unsigned char>(letra)];
    }
    return dobrado;
}

std::shared_ptr<NoRegistro> AchaNo(const std::shared_ptr<NoRegistro> &base, const QByteArray &sub)
{
    const auto partes = PartesDoCaminho(sub);
    if (!partes) {
        return nullptr;
    }
    std::shared_ptr<NoRegistro> no = base;
    for (const QByteArray &parte : *partes) {
        const auto *filho = no->chaves.Acha(parte);
        if (filho == nullptr) {
            return nullptr;
        }
        no = *filho;
    }
    return no;
}

std::shared_ptr<NoRegistro> CriaNo(const std::shared_ptr<NoRegistro> &base, const QByteArray &sub)
{
    const auto partes = PartesDoCaminho(sub);
    if (!partes || base->nivel + partes->size() > kNiveisMaximos) {
        return nullptr;
    }
    std::shared_ptr<NoRegistro> no = base;
    for (const QByteArray &parte : *partes) {
        const auto *filho = no->chaves.Acha(parte);
        if (filho == nullptr) {
            auto novo = std::make_shared<NoRegistro>();
            novo->nome = parte;
            novo->pai = no.get();
            novo->nivel = no->nivel + 1;
            filho = &no->chaves.Acrescenta(parte, std::move(novo));
        }
        no = *filho;
    }
    return no;
}

bool GuardaValor(NoRegistro &no, const QByteArray &nome, std::uint32_t tipo,
                 const QByteArray &dados)
{
    const QByteArray inteiro = AteONul(nome);
    if (inteiro.size() > kNomeDeValorMaximo) {
        return false;
    }
    if (ValorGuardado *valor = no.valores.Acha(inteiro)) {
        valor->tipo = tipo;
        valor->dados = dados;
    } else {
        no.valores.Acrescenta(inteiro, {inteiro, tipo, dados});
    }
    return true;
}

QByteArray EscreveArvores(const std::vector<std::shared_ptr<NoRegistro>> &raizes)
{
    QByteArray saida(kCabecalho);
    for (std::size_t raiz = 0; raiz < raizes.size(); ++raiz) {
        EscreveNo(*raizes[raiz], QByteArray::number(static_cast<int>(raiz)), QByteArray(), saida);
    }
    return saida;
}

void LeArvores(const QByteArray &bytes, const std::vector<std::shared_ptr<NoRegistro>> &raizes)
{
    std::shared_ptr<NoRegistro> no;
    for (qsizetype inicio = 0; inicio < bytes.size();) {
        auto fim = bytes.indexOf('\n', inicio);
        fim = fim < 0 ? bytes.size() : fim;
        const QList<QByteArray> campos = bytes.sliced(inicio, fim - inicio).split(' ');
        inicio = fim + 1;
        if (campos[0] != "V") {
            // Values behind a key line that cannot be read belong to no other key.
            no = LeLinhaDeChave(campos, raizes);
        } else if (no) {
            LeLinhaDeValor(campos, *no);
        }
    }
}
