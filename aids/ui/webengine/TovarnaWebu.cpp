#include "aids/ui/webengine/TovarnaWebu.h"

#include "aids/ui/webengine/ProhlizecWebu.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QQuickWindow>

QT_BEGIN_NAMESPACE
// Not declared in any public header, but exported for the engine itself, which sets the context in the same
// way.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace zvonika {

namespace {

void zahodPrazdnyKontext() {
    delete QOpenGLContext::globalShareContext();
    qt_gl_set_global_share_context(nullptr);
}

/// The engine reads the format of the application's shared OpenGL context without asking whether there is
/// one, even when it draws in software. One that was never created satisfies it and loads no graphics driver.
void dejPrazdnyKontext() {
    if (QOpenGLContext::globalShareContext()) return;
    qt_gl_set_global_share_context(new QOpenGLContext);
    qAddPostRoutine(zahodPrazdnyKontext); // it must not outlive the application
}

} // namespace

TovarnaWebu::TovarnaWebu() {
    // Text and pictures need no graphics card. Drawn in software the engine needs no OpenGL context shared
    // with the application, which would have to be made at every start of the program, help or no help.
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    dejPrazdnyKontext();
    // Without a graphics card the engine prints a page of what it has found.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
}

Prohlizec* TovarnaWebu::vytvor(const MistoProhlizece& misto) {
    return new ProhlizecWebu(misto);
}

} // namespace zvonika
