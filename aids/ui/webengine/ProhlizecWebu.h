#pragma once

#include "aids/ui/Prohlizec.h"

#include <QWebEngineProfile>
#include <QWebEngineView>

#include <memory>

namespace zvonika {

class StrankaWebu;

/// The real browser control. Its profile keeps nothing on the disk and shares nothing with other windows.
class ProhlizecWebu : public QWidget, public Prohlizec {
    Q_OBJECT
public:
    explicit ProhlizecWebu(const MistoProhlizece& misto);
    ~ProhlizecWebu() override;

    QWidget* widget() override { return this; }
    void prejdi(const QUrl& adresa) override;
    void zpet() override;
    void vpred() override;
    bool muzeZpet() const override;
    bool muzeVpred() const override;
    void obnov() override;
    void zastav() override { pohled_->stop(); }
    bool zaneprazdnen() const override { return nacita_; }
    QString titulek() const override;
    void najdi(const QString& text, bool dozadu) override;

private:
    void pripravProfil();
    void pripravPohled();
    void sleduj();
    void vykreslovaniPadlo();
    void ukazNabidku(const QPoint& misto);

    SledovaniProhlizece& sledovani_;
    const PovoleneAdresy& povolene_;
    std::unique_ptr<QWebEngineProfile> profil_; // outlives the page
    std::unique_ptr<QWebEngineView> pohled_;    // owns the page
    StrankaWebu* stranka_;
    bool nacita_ = false;
    QUrl spadla_; ///< the page whose render process went; empty: it is running
};

} // namespace zvonika
