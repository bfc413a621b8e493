#include "assets/pictures.h"
#include "tools/art/catalogue.h"
#include "tools/art/icon.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <QFile>
#include <QImageReader>
#include <QRect>

namespace {

constexpr QRgb kChave = qRgb(255, 0, 0);
constexpr QRgb kCorpo = qRgb(0, 130, 198);
constexpr QRgb kAmarelo = qRgb(222, 199, 24);
constexpr QRgb kBranco = qRgb(255, 255, 255);
constexpr std::array<QStringView, 4> kRecortadas = {u"Form1", u"FrmCarregar", u"FrmSalvar2",
                                                    u"FrmHanking"};

QImage Le(QStringView nome, int escala = 1)
{
    QString caminho = CaminhoFigura(nome);
    if (escala > 1) {
        caminho.replace(QStringLiteral(".png"), QStringLiteral("@%1x.png").arg(escala));
    }
    return QImage(caminho);
}

std::string Texto(QStringView nome, int escala = 1)
{
    return qPrintable(QStringLiteral("%1 at scale %2").arg(nome).arg(escala));
}

QRect Vezes(const QRect &area, int escala)
{
    return {area.topLeft() * escala, area.size() * escala};
}

/// Key pixels at the left and at the right end of row `y`.
std::pair<int, int> ChaveEsperada(int y, int altura)
{
    constexpr std::pair<int, int> kEmCima[] = {{4, 3}, {2, 2}, {1, 1}, {1, 1}};
    constexpr std::pair<int, int> kEmBaixo[] = {{5, 4}, {4, 2}, {2, 1}, {1, 1}, {1, 0}};
    return y < 4 ? kEmCima[y] : altura - y <= 5 ? kEmBaixo[altura - y - 1] : std::pair{0, 0};
}

double Luminancia(QRgb cor)
{
    const auto linear = [](int canal) {
        const double c = canal / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(cor)) + 0.7152 * linear(qGreen(cor)) + 0.0722 * linear(qBlue(cor));
}

/// Pixels in `area` whose colour `serve`.
template <typename Teste>
int Conta(const QImage &imagem, const QRect &area, Teste serve)
{
    int n = 0;
    for (int k = 0; k < area.width() * area.height(); ++k) {
        const QPoint lugar(k % area.width(), k / area.width());
        n += serve(imagem.pixel(area.topLeft() + lugar)) ? 1 : 0;
    }
    return n;
}

bool Lisa(const QImage &imagem, const QRect &area, QRgb cor)
{
    return Conta(imagem, area, [cor](QRgb c) { return c != cor; }) == 0;
}

int Brancos(const QImage &imagem, const QRect &area)
{
    return Conta(imagem, area, [](QRgb cor) { return cor == kBranco; });
}

/// Pixels of a menu button's word, of its light upper edge and of its dark foot.
int DeBotao(const QImage &imagem, const QRect &area)
{
    return Conta(imagem, area,
                 [](QRgb cor) { return Luminancia(cor) > 0.33 || Luminancia(cor) < 0.03; });
}

/// Largest difference of a channel between two pictures; 255 where their sizes differ.
int MaiorDiferenca(const QImage &a, const QImage &b)
{
    if (a.size() != b.size()) return 255;
    const QImage x = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int maior = 0;
    for (qsizetype k = 0; k < x.sizeInBytes(); ++k) {
        maior = std::max(maior, std::abs(int{x.constBits()[k]} - int{y.constBits()[k]}));
    }
    return maior;
}

} // namespace

TEST(Pictures, HaveTheSizesOfTheirControlsAndTheRightDepth)
{
    const QString casos = QStringLiteral(
        "FrmSplash 361 90|Form1 652 499|FrmCarregar 251 373|FrmSalvar2 283 99|FrmHanking 385 206|"
        "Image6 117 32|Jogo 70 118|Image7 196 21 a|ImgR 20 19 a|Image1 20 20 a|ImgHintDire 14 28 a|"
        "ImgHintDire2 12 13 a|Pergunta 32 32 a|Mao 32 32 a");
    for (const QString &caso : casos.split(u'|')) {
        const QStringList partes = caso.split(u' ');
        for (int escala = 1; escala <= 3; ++escala) {
            const QImage imagem = Le(partes[0], escala);
            EXPECT_EQ(imagem.size(), QSize(partes[1].toInt(), partes[2].toInt()) * escala)
                << Texto(caso, escala);
            EXPECT_EQ(imagem.hasAlphaChannel(), partes.size() == 4) << Texto(caso, escala);
        }
    }
}

TEST(Pictures, CarryTheKeyColourInTheirCornersUnblendedAndNowhereElse)
{
    for (const QStringView nome : kRecortadas) {
        for (int escala = 1; escala <= 3; ++escala) {
            const QImage imagem = Le(nome, escala);
            const QRgb borda = imagem.pixel(imagem.width() / 2, 0);
            int chaves = 0;
            int erros = 0;
            for (int k = 0; k < imagem.width() * imagem.height(); ++k) {
                const QPoint lugar(k % imagem.width(), k / imagem.width());
                const auto [esquerda, direita] =
                    ChaveEsperada(lugar.y() / escala, imagem.height() / escala);
                const bool achada = imagem.pixel(lugar) == kChave;
                const bool canto =
                    lugar.x() < esquerda * escala || lugar.x() >= imagem.width() - direita * escala;
                chaves += achada ? 1 : 0;
                // Larger scales round the corners inside the pattern.
                erros += achada && !canto ? 1 : achada != canto && escala == 1 ? 1 : 0;
                for (const QPoint passo : {QPoint(1, 0), {-1, 0}, {0, 1}, {0, -1}}) {
                    const QPoint vizinha = lugar + passo;
                    const QRgb cor = imagem.valid(vizinha) ? imagem.pixel(vizinha) : kChave;
                    erros += achada && cor != kChave && cor != borda ? 1 : 0;
                }
            }
            EXPECT_EQ(erros, 0) << Texto(nome, escala);
            EXPECT_GT(chaves, 12 * escala * escala) << Texto(nome, escala);
        }
        // The reader widens 24 bits to 32, so the file's own header is asked too: 8 bits, no alpha.
        QFile arquivo(CaminhoFigura(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
        EXPECT_EQ(arquivo.read(26).sliced(24), QByteArray("\x08\x02", 2)) << Texto(nome);
    }
}

TEST(Pictures, KeepTheirGroundPlainWhereControlsWrite)
{
    const QImage form = Le(u"Form1");
    const struct
    {
        QStringView nome;
        QRect area;
        QRgb cor;
    } casos[] = {{u"FrmSplash", {270, 16, 80, 16}, qRgb(75, 119, 176)},
                 {u"Form1", {5, 32, 490, 415}, kCorpo},
                 {u"Form1", {74, 475, 531, 14}, kCorpo},
                 {u"Form1", {553, 343, 59, 15}, form.pixel(553, 343)},
                 {u"FrmCarregar", {14, 41, 223, 24}, qRgb(255, 255, 223)},
                 {u"FrmSalvar2", {20, 36, 256, 58}, qRgb(47, 182, 255)},
                 {u"FrmHanking", {15, 46, 355, 18}, qRgb(0, 0, 0)}};
    for (const auto &[nome, area, cor] : casos) {
        for (int escala = 1; escala <= 3; ++escala) {
            EXPECT_TRUE(Lisa(Le(nome, escala), Vezes(area, escala), cor)) << Texto(nome, escala);
        }
    }
    // A box under every item button and the clock.
    for (int n = 0; n <= 26; ++n) {
        const QRect caixa = n < 26 ? QRect(12 + 21 * n, 458, 18, 1) : QRect(563, 458, 76, 1);
        EXPECT_TRUE(Lisa(form, caixa, kAmarelo)) << n;
        EXPECT_TRUE(form.pixel(caixa.left() - 1, 458) == kCorpo &&
                    form.pixel(caixa.right() + 1, 458) == kCorpo)
            << n;
    }
}

TEST(Pictures, PaintTheirButtonsUnderTheClickZones)
{
    const QImage form = Le(u"Form1");
    int soma = 0;
    for (const QRect &zona :
         {QRect(524, 46, 113, 26), QRect(524, 86, 113, 26), QRect(523, 126, 113, 26),
          QRect(524, 167, 113, 27), QRect(525, 207, 113, 27), QRect(525, 248, 113, 27)}) {
        EXPECT_GT(DeBotao(form, zona), 300);
        soma += DeBotao(form, zona);
    }
    EXPECT_EQ(DeBotao(form, {500, 32, 148, 300}), soma);

    const int informacao = Brancos(form, {614, 2, 16, 16});
    EXPECT_GT(informacao, 5);
    // Where two forms share a picture, the zone of its cross is what both have in common.
    const std::array<QRect, 4> cruzes = {QRect(629, 2, 19, 18), QRect(229, 3, 16, 19),
                                         QRect(258, 4, 22, 19), QRect(361, 0, 20, 21)};
    for (size_t n = 0; n < cruzes.size(); ++n) {
        const QImage imagem = Le(kRecortadas[n]);
        const int cruz = Brancos(imagem, cruzes[n]);
        const QRect faixa = n == 0 ? QRect(500, 1, 148, 29) : QRect(0, 0, imagem.width(), 30);
        EXPECT_GT(cruz, 5) << Texto(kRecortadas[n]);
        EXPECT_EQ(Brancos(imagem, faixa), cruz + (n == 0 ? informacao : 0)) << n;
    }
}

TEST(Pictures, GiveWhiteTextAContrastOfFourAndAHalf)
{
    // The lightest ground that a white word stands on, in each picture.
    const std::pair<QStringView, QPoint> casos[] = {
        {u"FrmSplash", {180, 20}}, {u"Form1", {300, 8}},    {u"Form1", {530, 53}},
        {u"Form1", {600, 350}},    {u"Image6", {8, 6}},     {u"Image1", {10, 3}},
        {u"ImgR", {5, 5}},         {u"FrmHanking", {90, 8}}};
    for (const auto &[nome, ponto] : casos) {
        EXPECT_GE(1.05 / (Luminancia(Le(nome).pixel(ponto)) + 0.05), 4.5) << Texto(nome);
    }
}

TEST(Pictures, LetDesistirCoverTheFirstMenuButtonWithoutATrace)
{
    for (int escala = 1; escala <= 3; ++escala) {
        const QImage form = Le(u"Form1", escala).copy(Vezes({525, 47, 117, 32}, escala));
        const QImage botao = Le(u"Image6", escala);
        // Below and beside the button the covering picture is the ground itself.
        for (const QRect &area : {QRect(0, 27, 117, 5), QRect(112, 0, 5, 32)}) {
            const QRect parte = Vezes(area, escala);
            EXPECT_EQ(MaiorDiferenca(form.copy(parte), botao.copy(parte)), 0) << escala;
        }
    }
}

TEST(Pictures, DrawTheHandInBlackAndWhiteWithItsHotSpotAtTheFingertip)
{
    const QImage mao = Le(u"Mao");
    EXPECT_EQ(Conta(mao, mao.rect(),
                    [](QRgb c) { return qAlpha(c) == 0 || c == qRgb(0, 0, 0) || c == kBranco; }),
              32 * 32);
    EXPECT_NE(qAlpha(mao.pixel(kPontoMao)), 0);
    EXPECT_EQ(qAlpha(mao.pixel(kPontoMao - QPoint(0, 1))), 0);
}

TEST(Pictures, ComeOutTheSameWhenDrawnAnew)
{
    for (const Figura &figura : Figuras()) {
        for (int escala = 1; escala <= figura.escalas; ++escala) {
            // Machines may round a blended pixel differently by a step or two.
            EXPECT_LE(MaiorDiferenca(DesenhaFigura(figura, escala), Le(figura.nome, escala)), 2)
                << Texto(figura.nome, escala);
        }
    }
    QFile vetor(QStringLiteral(QUADRELO_ASSETS "/figuras/quadrelo.svg"));
    ASSERT_TRUE(vetor.open(QIODevice::ReadOnly));
    EXPECT_EQ(vetor.readAll(), IconeVetorial());
}

TEST(IconFile, HoldsThreeSizesInTwoDepths)
{
    QImageReader leitor(QStringLiteral(QUADRELO_ASSETS "/figuras/quadrelo.ico"), "ico");
    ASSERT_EQ(leitor.imageCount(), 6);
    for (int n = 0; n < 6; ++n) {
        ASSERT_TRUE(leitor.jumpToImage(n));
        const QImage icone = leitor.read();
        const int lado = std::array{16, 32, 48}[static_cast<size_t>(n / 2)];
        EXPECT_EQ(icone.size(), QSize(lado, lado));
        EXPECT_EQ(icone.text(QStringLiteral("_q_icoOrigDepth")).toInt(), n % 2 == 0 ? 8 : 32);
        EXPECT_EQ(qAlpha(icone.pixel(0, 0)), 0) << n;
        // In the middle of the tile: the ring's inside.
        const QRgb cor = icone.pixel(lado * 7 / 16, lado * 7 / 16);
        EXPECT_TRUE(qBlue(cor) > 130 && qRed(cor) < 60) << n;
    }
    QFile arquivo(leitor.fileName());
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(arquivo.size(), ArquivoIcone().size()) << "drawn anew";
}
