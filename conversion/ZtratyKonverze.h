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

    Tony bezProtejsku_, mimoNastroj_;
    QString chybaTabulky_;
};

/// Rows in a short form: "řádek 3", "řádky 1–4, 7"; of many the first ones, "a další, celkem 40 řádků".
QString popisRadku(const QList<int>& radky);

} // namespace zvonika
