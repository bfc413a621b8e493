#include "ui/forms/control_table.h"

namespace forms {

namespace {

using toolkit::Control;
using toolkit::Form;
using toolkit::PictureBox;

class Criador
{
public:
    Criador(Form &form, const DefControle &def)
        : m_form(form),
          m_def(def),
          m_nome(QString::fromUtf16(def.nome)),
          m_dentro(def.dentro == nullptr ? nullptr : &Acha<PictureBox>(form, def.dentro))
    {
    }

    void Cria()
    {
        Control &controle = CriaTipo();
        controle.SetFont(m_def.fonte);
        controle.SetForeColor(m_def.cor);
        controle.SetBackColor(m_def.fundo);
        controle.SetEnabled(m_def.habilitado);
        // The table counts in twips, a container may count in pixels.
        const auto naEscala = [para = controle.GetOrigem().porPixel,
                               de = toolkit::TwipsPorPixel(m_form.Dpi())](float twips) {
            return twips * para / de;
        };
        controle.Move(naEscala(m_def.left), naEscala(m_def.top), naEscala(m_def.width),
                      naEscala(m_def.height));
        controle.SetVisible(m_def.visivel);
    }

private:
    template <class T>
    T &Novo()
    {
        return m_form.Cria<T>(m_nome, m_def.indice, m_dentro);
    }

    Control &CriaTipo()
    {
        switch (m_def.tipo) {
        case Tipo::Label:
            return CriaLabel();
        case Tipo::Image:
            return CriaImage();
        case Tipo::PictureBox:
            return CriaPictureBox();
        case Tipo::TextBox:
            return CriaTextBox();
        case Tipo::CommandButton:
            return CriaCommandButton();
        case Tipo::Timer:
            return CriaTimer();
        case Tipo::Line:
            return Novo<toolkit::Line>();
        case Tipo::Helper:
            break;
        }
        return Novo<toolkit::Helper>();
    }

    Control &CriaLabel()
    {
        auto &label = Novo<toolkit::Label>();
        label.SetCaption(QString::fromUtf16(m_def.texto));
        label.SetAlignment(m_def.alinhamento);
        label.SetTransparente(m_def.transparente);
        label.SetBorderStyle(m_def.borda);
        label.SetAutoSize(m_def.autoSize);
        return label;
    }

    Control &CriaImage()
    {
        auto &image = Novo<toolkit::Image>();
        image.SetStretch(m_def.stretch);
        image.SetBorderStyle(m_def.borda);
        if (m_def.figura != nullptr) {
            image.SetPicture(toolkit::Picture(QString::fromUtf16(m_def.figura)));
        }
        return image;
    }

    Control &CriaPictureBox()
    {
        auto &caixa = Novo<PictureBox>();
        caixa.SetBorderStyle(m_def.borda);
        caixa.SetAutoSize(m_def.autoSize);
        caixa.SetEscalaPixels(m_def.pixels);
        return caixa;
    }

    Control &CriaTextBox()
    {
        auto &texto = Novo<toolkit::TextBox>();
        texto.SetText(QString::fromUtf16(m_def.texto));
        texto.SetAlignment(m_def.alinhamento);
        texto.SetMaxLength(m_def.maximo);
        return texto;
    }

    Control &CriaCommandButton()
    {
        auto &botao = Novo<toolkit::CommandButton>();
        botao.SetCaption(QString::fromUtf16(m_def.texto));
        botao.SetDefault(m_def.padrao);
        return botao;
    }

    Control &CriaTimer()
    {
        auto &timer = Novo<toolkit::Timer>();
        timer.SetInterval(m_def.intervaloMs);
        return timer;
    }

    Form &m_form;
    const DefControle &m_def;
    QString m_nome;
    const PictureBox *m_dentro;
};

} // namespace

void NomeiaCampo(const Form &form, const char16_t *campo, const char16_t *rotulo)
{
    const auto &de = Acha<toolkit::Label>(form, rotulo);
    Acha<toolkit::TextBox>(form, campo).SetAcessivel({.nome = [&de] { return de.Caption(); }});
}

void Define(Form &form, const DefForm &def)
{
    form.setObjectName(QString::fromUtf16(def.nome));
    form.SetCaption(QString::fromUtf16(def.caption));
    form.SetSize(def.width, def.height);
    if (def.figura != nullptr) {
        form.SetPicture(toolkit::Picture(QString::fromUtf16(def.figura)));
    }
    for (const DefControle &controle : def.controles) {
        Criador(form, controle).Cria();
    }
}

} // namespace forms
