#pragma once
// Accumulates many short pieces into one long text. The buffer grows in large
// steps so the command text of a big layout is not copied at every line.

#include <QString>

namespace lumeta {

class clsConcatenarString {
public:
    void Clear();
    // Empties the text but keeps the buffer, for a text built again and
    // again (the command text of every edit).
    void Esvaziar() { usado_ = 0; }
    void Add(const QString &texto) { Add(texto.constData(), texto.size()); }
    void Add(QLatin1StringView texto);
    void Add(const QChar *dados, qsizetype n);
    void Add(QChar c) { Add(&c, 1); }
    QString ResultString() const { return buffer_.left(usado_); }

    int32_t BufferIncrement() const { return incremento_; }
    void setBufferIncrement(int32_t v) { incremento_ = v; }
    int32_t Capacidade() const { return capacidade_; }
    int32_t Tamanho() const { return usado_; }

private:
    void reservar(qsizetype n);

    QString buffer_;
    int32_t incremento_ = 64000;
    int32_t usado_ = 0;
    int32_t capacidade_ = 0;
};

}  // namespace lumeta
