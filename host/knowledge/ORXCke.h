#ifndef ORXCke_H
#define ORXCke_H

/**
 * @file
 * The boolean of the knowledge interfaces. A value class.
 */

namespace ORXCke
{
/// Copied from one of the two constants; read as a number it is nonzero for true.
class Boolean
{
public:
    /// Nonzero for true.
    constexpr operator int() const noexcept { return m_value; }

    /// The constant that is meant.
    static constexpr Boolean Of(bool iValue) noexcept { return Boolean(iValue ? 1 : 0); }

private:
    explicit constexpr Boolean(unsigned char iValue) noexcept : m_value(iValue) {}

    unsigned char m_value;
};

/// Reads as 1.
inline constexpr Boolean True = Boolean::Of(true);
/// Reads as 0.
inline constexpr Boolean False = Boolean::Of(false);
} // namespace ORXCke

#endif
