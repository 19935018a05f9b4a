#pragma once

#include <QRect>
#include <QString>

namespace zvonika {

/// What Calc is to begin with.
struct ProfileSeed {
    QString workFolder; ///< native; where Calc's file choices start; "": as it was
    QRect window;       ///< of a workbook's window, in pixels of the screen; empty: as it was
    /// Of the LibreOffice that is started, as "7.4". One that has never run in a profile spends its first
    /// second on trying out the display.
    QString version = {};
};

/// The user profile of Zvonika's own office, apart from the user's. Several Zvonikas each have one.
class Profile {
public:
    /// Takes the first profile in `folder` (native, made where it is missing) that no running office has.
    /// AutomationError 429 when none can be had.
    explicit Profile(const QString& folder);
    ~Profile();
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;

    /// Writes Calc's settings: nothing that asks at the start or at a save, no completion and correction of
    /// what is typed (syllables are no sentences), .xls for new workbooks. The user's other settings stay.
    void seed(const ProfileSeed& seed) const;

    const QString& path() const { return path_; } ///< native
    /// Holds the profile for as long as this descriptor, or a copy of it, is open in any process.
    int lock() const { return lock_; }

private:
    QString path_;
    int lock_ = -1;
};

} // namespace zvonika
