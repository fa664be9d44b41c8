#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>

class Fumetto;
class QWidget;

/// A balloon that points at a control: title, text and icon, gone by itself after the delay, at a click or when the
/// control goes. Owned by whoever shows it; several may be up at once.
class clsBalloonToolTip {
public:
    clsBalloonToolTip();
    ~clsBalloonToolTip();
    clsBalloonToolTip(const clsBalloonToolTip&) = delete;
    clsBalloonToolTip& operator=(const clsBalloonToolTip&) = delete;

    const QString& Titolo() const { return titolo_; }
    void setTitolo(const QString& titolo) { titolo_ = titolo; }
    const QString& Testo() const { return testo_; }
    void setTesto(const QString& testo) { testo_ = testo; }
    int Icona() const { return icona_; }
    void setIcona(int icona) { icona_ = icona; } ///< As in message boxes: 16, 48, 64; 0 none.
    int Ritardo() const { return ritardo_; }
    void setRitardo(int millisecondi) { ritardo_ = millisecondi; } ///< How long it stays; 0 until it is removed.
    QWidget* Controllo() const { return controllo_; }
    void setControllo(QWidget* controllo) { controllo_ = controllo; }

    /// Builds the balloon from the properties, in place of the one before. False without a control or a text.
    bool Crea();
    /// Shows it at the control, which must be on the screen; builds it when it is not there.
    bool Mostra();
    void Rimuovi();
    bool Visibile() const;

private:
    QString titolo_;
    QString testo_;
    int icona_ = 0;
    int ritardo_ = 8000;
    QPointer<QWidget> controllo_;
    QPointer<Fumetto> fumetto_;
    QTimer fine_;
};
