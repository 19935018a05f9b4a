#pragma once

#include "aids/ui/Prohlizec.h"

#include <QTextBrowser>

namespace zvonika {

/// The lighter browser control: text, pictures and tables of the manual, without scripts. Pages of the web
/// are left to the user's own browser.
class ProhlizecTextu : public QTextBrowser, public Prohlizec {
    Q_OBJECT
public:
    explicit ProhlizecTextu(const MistoProhlizece& misto);

    QWidget* widget() override { return this; }
    void prejdi(const QUrl& adresa) override;
    void zpet() override { backward(); }
    void vpred() override { forward(); }
    bool muzeZpet() const override { return isBackwardAvailable(); }
    bool muzeVpred() const override { return isForwardAvailable(); }
    void obnov() override { reload(); }
    void zastav() override {}
    bool zaneprazdnen() const override { return false; }
    QString titulek() const override { return documentTitle(); }
    void najdi(const QString& text, bool dozadu) override;

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
    void srovnejSloupec();
    QString stranka(const QUrl& adresa) const;
    QVariant obrazek(const QUrl& adresa) const;
    void ukazNalezy(const QList<QTextCursor>& nalezy);

    const PovoleneAdresy& povolene_;
    SledovaniProhlizece& sledovani_;
    QString hledany_;
};

} // namespace zvonika
