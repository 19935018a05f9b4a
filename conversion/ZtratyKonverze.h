#pragma once

#include <QList>
#include <QString>

namespace zvonika {

/// What a conversion has lost on its way, told in one sentence of the status line.
class ZtratyKonverze {
public:
    /// The row's tone has no entry in the table, its cell is empty now. Rows are to come in ascending order.
    void pridejBezProtejsku(int radek) { bezProtejsku_.pridej(radek); }
    /// The row's new tone lies outside the instrument (1 to 49).
    void pridejMimoNastroj(int radek) { mimoNastroj_.pridej(radek); }
    /// The tone in column B was emptied: for every reader the song ends at this row.
    void pridejNejnizsi(int radek) { nejnizsi_.pridej(radek); }
    /// The row's key is none, so no tone of it has an entry: what column W holds instead.
    void pridejBezToniny(int radek, const QString& misto) {
        bezToniny_.pridej(radek);
        mistoToniny_ = misto;
    }
    /// The run has ended at this empty cell ("C2"), and these rows below it hold grips still.
    void nastavKonec(const QString& bunka, const QList<int>& neprevedene);
    void nastavChybuTabulky(const QString& veta) { chybaTabulky_ = veta; }

    /// "" when nothing was lost.
    QString veta() const;

private:
    struct Tony {
        int pocet = 0;
        QList<int> radky; ///< each once

        void pridej(int radek);
    };
    static QString popis(const QString& co, const Tony& tony);
    QString ztraty() const;
    QString vetaONejnizsich() const;
    QString vetaOKonci() const;

    Tony bezProtejsku_, mimoNastroj_, nejnizsi_, bezToniny_;
    QString mistoToniny_;
    QString konec_; ///< cell at which the run has ended
    QList<int> neprevedene_;
    QString chybaTabulky_;
};

/// Rows in ascending order in a short form: "řádek 3", "řádky 1–4, 7"; of many the first ones, "a další,
/// celkem 40 řádků".
QString popisRadku(const QList<int>& radky);

} // namespace zvonika
