#include "tools/art/catalogue.h"

#include "tools/art/form_pictures.h"
#include "tools/art/icon.h"
#include "tools/art/small_pictures.h"
#include "tools/art/window_frame.h"
#include <array>

namespace {

/// 96 dots an inch, whatever screen the program is run on.
constexpr int kPontosPorMetro = 3780;

template <int Lado>
void PintaIconeDe(QPainter &p)
{
    PintaIcone(p, Lado);
}

template <int Lado>
constexpr Figura Icone(QStringView nome)
{
    return {nome, {Lado, Lado}, TipoFigura::Translucida, PintaIconeDe<Lado>, 1};
}

constexpr std::array kFiguras = {
    Figura{u"FrmSplash", {361, 90}, TipoFigura::Opaca, PintaFrmSplash},
    Figura{u"Form1", {652, 499}, TipoFigura::Recortada, PintaForm1},
    Figura{u"FrmCarregar", {251, 373}, TipoFigura::Recortada, PintaFrmCarregar},
    Figura{u"FrmSalvar2", {283, 99}, TipoFigura::Recortada, PintaFrmSalvar2},
    Figura{u"FrmHanking", {385, 206}, TipoFigura::Recortada, PintaFrmHanking},
    Figura{u"Image6", {117, 32}, TipoFigura::Opaca, PintaImage6},
    Figura{u"Image7", {196, 21}, TipoFigura::Translucida, PintaImage7},
    Figura{u"ImgR", {20, 19}, TipoFigura::Translucida, PintaImgR},
    Figura{u"Image1", {20, 20}, TipoFigura::Translucida, PintaImage1},
    Figura{u"ImgHintDire", {14, 28}, TipoFigura::Translucida, PintaImgHintDire},
    Figura{u"ImgHintDire2", {12, 13}, TipoFigura::Translucida, PintaImgHintDire2},
    Figura{u"Jogo", {70, 118}, TipoFigura::Opaca, PintaJogo},
    Figura{u"Pergunta", {32, 32}, TipoFigura::Translucida, PintaPergunta},
    Figura{u"Mao", {32, 32}, TipoFigura::Translucida, PintaMao},
    Icone<16>(u"Icone16"),
    Icone<22>(u"Icone22"),
    Icone<24>(u"Icone24"),
    Icone<32>(u"Icone32"),
    Icone<48>(u"Icone48"),
    Icone<64>(u"Icone64"),
    Icone<128>(u"Icone128"),
    Icone<256>(u"Icone256"),
};

} // namespace

std::span<const Figura> Figuras()
{
    return kFiguras;
}

QString NomeArquivo(const Figura &figura, int escala)
{
    const QString marca = escala == 1 ? QString() : QStringLiteral("@%1x").arg(escala);
    return figura.nome.toString() + marca + QStringLiteral(".png");
}

QImage DesenhaFigura(const Figura &figura, int escala)
{
    QImage imagem(figura.tamanho * escala, QImage::Format_ARGB32_Premultiplied);
    imagem.fill(Qt::transparent);
    QPainter p(&imagem);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(escala, escala);
    figura.pinta(p);
    p.end();

    if (figura.tipo == TipoFigura::Recortada) {
        imagem = RecortaCantos(imagem, escala);
    }
    const bool translucida = figura.tipo == TipoFigura::Translucida;
    imagem.convertTo(translucida ? QImage::Format_ARGB32 : QImage::Format_RGB888);
    imagem.setDotsPerMeterX(kPontosPorMetro * escala);
    imagem.setDotsPerMeterY(kPontosPorMetro * escala);
    return imagem;
}
