#include "controls/ui/ModMouseWheel.h"

#include <QInputDevice>
#include <QPointingDevice>
#include <QWheelEvent>
#include <QWidget>
#include <cmath>

namespace lumeta {

DirecaoRolagem DirecaoRoda(int distancia)
{
    // Rounded to the nearest whole notch, halves to even.
    const double notches = std::nearbyint(distancia / 120.0);
    return notches == 1.0 ? RolarAcima : RolarAbaixo;
}

bool HaRodaNoSistema()
{
    const auto dispositivos = QInputDevice::devices();
    for (const QInputDevice *d : dispositivos)
        if (d->capabilities().testFlag(QInputDevice::Capability::Scroll))
            return true;
    // A platform that lists no devices at all cannot tell; the core pointer
    // then stands for the mouse, and mice have wheels.
    bool algumPonteiro = false;
    for (const QInputDevice *d : dispositivos)
        if (d->type() == QInputDevice::DeviceType::Mouse || d->type() == QInputDevice::DeviceType::TouchPad)
            algumPonteiro = true;
    return !algumPonteiro;
}

bool ModMouseWheel::InstalarRoda(QWidget *janela, bool forcar)
{
    if (!janela || (!forcar && !HaRodaNoSistema()))
        return false;
    RemoverRoda();
    m_janela = janela;
    janela->installEventFilter(this);
    return true;
}

void ModMouseWheel::RemoverRoda()
{
    if (m_janela)
        m_janela->removeEventFilter(this);
    m_janela.clear();
}

bool ModMouseWheel::eventFilter(QObject *obj, QEvent *e)
{
    if (e->type() != QEvent::Wheel || m_repassando || obj != m_janela)
        return QObject::eventFilter(obj, e);
    auto *roda = static_cast<QWheelEvent *>(e);
    // A sideways tilt is another message, not the wheel.
    if (roda->angleDelta().y() == 0 && roda->angleDelta().x() != 0)
        return QObject::eventFilter(obj, e);
    // The window's own handling first, then one step of the canvas.
    m_repassando = true;
    const bool resultado = obj->event(e);
    m_repassando = false;
    if (m_rolar)
        m_rolar(DirecaoRoda(roda->angleDelta().y()));
    Q_UNUSED(resultado);
    return true;
}

}  // namespace lumeta
