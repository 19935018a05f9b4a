#pragma once

#include "board/ui/Umisti.h"

#include <QString>

#include <functional>

class QWidget;

namespace zvonika {

class BassBoard;
class TrebleBoard;

/// Who is told what the user does on the treble board or the piano.
struct ObsluhaDiskantu {
    std::function<void(int n)> klik;                   ///< button, auxiliary button or piano key n
    std::function<void(int n, bool pomocny)> dvojklik; ///< double click or F2 on a button: finger input
    std::function<QString(int n)> nazev; ///< tone of button n as accessible names and tooltips say it
};

struct ObsluhaBasu {
    std::function<void(int bas)> klik;
    std::function<QString(int bas)> nazev; ///< name of the bass; stands on the button
};

// Each function creates one group as children of `scena`, places them by `umisti` and keeps them in step with
// the model, which must outlive the scene. A group is one stop of the Tab key; groups follow each other in
// the order of the calls. Handlers may be empty; `umisti` is kept and must stay callable as long as the scene
// lives.

/// Instrument body, buttons `lbl(n)` and `lblSynchro(n)`, number labels `lblCisKnofl(i)`, row covers
/// `cmdZabrana(N)`.
void vytvorDiskant(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha,
                   const Umisti& umisti);

/// Keys `cmdKlavesa(n)` and their tone labels `lblTonKlav(n)`.
void vytvorKlaviaturu(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha,
                      const Umisti& umisti);

/// Instrument body, buttons `ImgBas(n)` and the captions of their six runs.
void vytvorBasy(QWidget* scena, const BassBoard& model, const ObsluhaBasu& obsluha, const Umisti& umisti);

/// Makes the part the one that the Tab key leads to in its group, as if it had had the focus last. Nothing
/// for what is no part of the instrument.
void nastavZastavkuTab(QWidget* prvek);

} // namespace zvonika
