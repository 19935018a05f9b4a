#pragma once

#include <QImage>
#include <QString>

#include <functional>

class QWidget;

namespace zvonika {

class Program;

/// The hands and eyes of a player who is played: mouse and keyboard events into the real windows, waiting for
/// what they bring about, and pictures of the screen. Throws std::runtime_error when a control cannot be used
/// or something does not happen in time.
class Hrac {
public:
    /// `slozkaObrazku`: existing native folder for the pictures. `ustaleni`: milliseconds for which the
    /// screen must stand still before a picture is taken, where a program that paints in its own time is on
    /// it.
    Hrac(Program& program, const QString& slozkaObrazku, int ustaleni = 0)
        : program_(program), slozka_(slozkaObrazku), ustaleni_(ustaleni) {}

    int obrazku() const { return obrazku_; } ///< pictures of the screen so far

protected:
    /// Waits until the main window is up and has the keyboard.
    void prevezmiOkno();
    static void cekejNaOkno(QWidget* okno, const QString& ktere);

    void klikni(const QString& jmeno);
    void dvojklikni(const QString& jmeno);
    void zvolVNabidce(const QString& jmeno); ///< menu entry by its control name
    static void napis(QWidget* kam, const QString& text);
    /// A control of the main window that can be seen and used.
    QWidget* prvek(const QString& jmeno) const;
    QWidget* tabulka() const;
    /// Runs `akce`, during which modal windows come up; `obsluha` is what the player does with each of them.
    void sOknem(const std::function<void()>& akce, const std::function<void(QWidget*)>& obsluha);
    void cekej(const std::function<bool()>& podminka, const QString& nac);
    /// Leaves a numbered picture of the whole screen.
    void obrazek(const QString& nazev);

    Program& program_;
    QString slozka_;

private:
    QImage ustaleny() const;
    QImage snimek() const;

    int ustaleni_;
    int obrazku_ = 0;
};

} // namespace zvonika
