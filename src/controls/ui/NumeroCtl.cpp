#include "controls/ui/NumeroCtl.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace lumeta {

NumeroCtl::NumeroCtl(QWidget *pai) : QWidget(pai), m_caixa(new QLineEdit(this))
{
    m_caixa->setObjectName(QStringLiteral("txtNumero"));
    m_caixa->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_caixa->installEventFilter(this);
    auto *l = new QHBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(m_caixa);
    setFocusProxy(m_caixa);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(m_caixa->sizePolicy());
    // Pastes, drops, undo and the Delete key change the text behind the
    // rules' back. What came in is typed again through the rules over what
    // it replaced, so a paste keeps only the characters the keys accept.
    connect(m_caixa, &QLineEdit::textEdited, this, [this](const QString &t) {
        if (m_escrevendo)
            return;
        const QString antes = m_regras.Texto;
        const double valorAntes = m_regras.Valor();
        qsizetype inicio = 0;
        while (inicio < antes.size() && inicio < t.size() && antes[inicio] == t[inicio])
            ++inicio;
        qsizetype fim = 0;
        while (fim < antes.size() - inicio && fim < t.size() - inicio
               && antes[antes.size() - 1 - fim] == t[t.size() - 1 - fim])
            ++fim;
        const QString entrou = t.mid(inicio, t.size() - inicio - fim);
        bool mudou = true;
        if (entrou.isEmpty()) {
            m_regras.Texto = t;
            m_regras.InicioSelecao = m_caixa->cursorPosition();
            m_regras.TamanhoSelecao = 0;
            mudou = m_regras.TextoAlterado();
        } else {
            m_regras.InicioSelecao = int(inicio);
            m_regras.TamanhoSelecao = int(antes.size() - inicio - fim);
            m_regras.Colar(entrou);
            mudou = m_regras.Texto != antes || m_regras.Valor() != valorAntes;
        }
        espelhar();
        if (mudou)
            emit Change();
    });
    exibir();
}

void NumeroCtl::exibir()
{
    m_escrevendo = true;
    m_caixa->setText(m_regras.Texto);
    m_escrevendo = false;
}

void NumeroCtl::espelhar()
{
    m_escrevendo = true;
    if (m_caixa->text() != m_regras.Texto)
        m_caixa->setText(m_regras.Texto);
    if (m_regras.TamanhoSelecao > 0)
        m_caixa->setSelection(m_regras.InicioSelecao, m_regras.TamanhoSelecao);
    else
        m_caixa->setCursorPosition(m_regras.InicioSelecao);
    m_escrevendo = false;
}

void NumeroCtl::setValue(double v)
{
    m_regras.DefinirValor(v);
    if (m_caixa->hasFocus())
        m_regras.GanharFoco();
    espelhar();
}

void NumeroCtl::Esvaziar()
{
    m_regras.DefinirVazio();
    espelhar();
}

void NumeroCtl::setNumberFormat(double v)
{
    if (m_regras.DefinirFormato(v))
        setValue(m_regras.Valor());
}

void NumeroCtl::setHoldDecimal(bool v)
{
    m_regras.ManterDecimais = v;
    setValue(m_regras.Valor());
}

void NumeroCtl::setSeparadorMilhar(bool v)
{
    m_regras.SeparadorMilhar = v;
    setValue(m_regras.Valor());
}

void NumeroCtl::setLocked(bool v)
{
    m_regras.Travado = v;
    m_caixa->setReadOnly(v);
}

void NumeroCtl::Rotular(QLabel *rotulo)
{
    rotulo->setBuddy(this);
    QString nome = rotulo->text();
    nome.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    m_caixa->setAccessibleName(nome.trimmed());
    setAccessibleName(nome.trimmed());
}

void NumeroCtl::setToolTip(const QString &dica)
{
    QWidget::setToolTip(dica);
    m_caixa->setToolTip(dica);
}

bool NumeroCtl::eventFilter(QObject *obj, QEvent *e)
{
    if (obj != m_caixa)
        return QWidget::eventFilter(obj, e);
    switch (e->type()) {
    case QEvent::FocusIn:
        m_regras.Texto = m_caixa->text();
        m_regras.GanharFoco();
        espelhar();
        break;
    case QEvent::FocusOut:
        m_regras.PerderFoco();
        espelhar();
        emit Saiu();
        break;
    case QEvent::KeyPress: {
        auto *k = static_cast<QKeyEvent *>(e);
        if (k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        QChar c;
        if (k->key() == Qt::Key_Escape)
            c = u'\x1b';
        else if (k->key() == Qt::Key_Backspace)
            c = u'\b';
        else if (!k->text().isEmpty() && k->text().at(0).isPrint())
            c = k->text().at(0);
        else
            return false;   // arrows, Delete, Home, Enter, Tab
        m_regras.Texto = m_caixa->text();
        m_regras.InicioSelecao = m_caixa->hasSelectedText() ? m_caixa->selectionStart() : m_caixa->cursorPosition();
        m_regras.TamanhoSelecao = m_caixa->hasSelectedText() ? int(m_caixa->selectedText().size()) : 0;
        const double antes = m_regras.Valor();
        const QString textoAntes = m_regras.Texto;
        switch (m_regras.Tecla(c)) {
        case EfeitoTecla::Recusada:
            QApplication::beep();
            return true;
        case EfeitoTecla::Passa:
            return false;
        case EfeitoTecla::Consumida:
            espelhar();
            if (m_regras.Texto != textoAntes || m_regras.Valor() != antes)
                emit Change();
            // Escape also goes on to the dialog, which closes as from any
            // other control.
            return c != u'\x1b';
        }
        return true;
    }
    default:
        break;
    }
    return false;
}

}  // namespace lumeta
