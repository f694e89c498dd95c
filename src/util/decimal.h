// Exact decimal numbers, read from texts as they are stored: sums and what is short of stock. A
// double of 0.1 + 0.2 is more than one of 0.3.
#pragma once

#include <QString>

#include <array>
#include <compare>
#include <optional>

// Texts have at most 18 digits on either side of the point, so that a product is exact, and there
// is room for as many lines and sets as a program can hold.
class decimal
{
public:
    decimal() = default;

    // The number of a text as numbers::finite() reads it. Nothing for any other text, and for a
    // number that has more digits on a side of the point.
    static std::optional<decimal> read(const QString &text);

    decimal &operator+=(const decimal &other);
    decimal operator+(const decimal &other) const { return decimal(*this) += other; }
    decimal operator-() const { return times(-1); }
    decimal operator-(const decimal &other) const { return *this + -other; }
    // Of numbers that were read, or sums of such.
    decimal operator*(const decimal &other) const;
    decimal times(int factor) const;
    // Cut off after the last digit that there is room for. Of a number from 0 up, by 1 or more.
    decimal dividedBy(int divisor) const;

    std::strong_ordering operator<=>(const decimal &other) const
    {
        return m_limbs <=> other.m_limbs;
    }
    bool operator==(const decimal &) const = default;

    // With a point and as many decimals as it has, at most and at least so many; half of the last
    // one is rounded away from nothing. Neither blanks nor an exponent.
    QString text(int most = fractionDigits, int fewest = 0) const;
    // In grosz, the form of amounts in files.
    QString money() const { return text(2, 2); }

private:
    static constexpr int digits = 9; // in a limb
    static constexpr int fractionDigits = 36;
    static constexpr int limbs = 10;

    void carry();

    // The greatest first, so that numbers compare as their limbs do: all from 0 up but the first,
    // which has the sign.
    std::array<qint64, limbs> m_limbs{};
};
