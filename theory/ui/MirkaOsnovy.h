#pragma once

class QRectF;

namespace zvonika {

/// Where the staff units of `PolohaNoty` lie on the screen: five lines from e1 up to f2, with room for ledger
/// lines.
struct MirkaOsnovy {
    static constexpr int e1 = 540;        ///< lowest line
    static constexpr int f2 = 1020;       ///< highest line
    static constexpr int nejnizsi = 120;  ///< e of the small octave
    static constexpr int nejvyssi = 1860; ///< f4: the tone e4 may be written as fes4
    static constexpr int jednotekNaMezeru = 120;
    /// Height of the whole range in staff spaces, note heads included.
    static constexpr double vyskaRozsahu = 15.4;

    double mezera = 8; ///< distance of two lines in pixels
    double yE1 = 0;    ///< y of the lowest line

    double y(int jednotky) const { return yE1 - (jednotky - e1) * mezera / jednotekNaMezeru; }
    /// The line or space nearest to `y`, within what can be written.
    int jednotky(double y) const;

    /// The largest staff whose range fits into the height of `pole` and whose spaces are no wider than
    /// `nejvice`, in the middle of `pole`. Lines fall on whole device pixels.
    static MirkaOsnovy proPole(const QRectF& pole, double nejvice, double dpr);
};

} // namespace zvonika
