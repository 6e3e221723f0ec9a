#ifndef NumberTexts_H
#define NumberTexts_H

#include <cstdint>
#include <random>
#include <string>

/**
 * Makes texts that are numbers, nearly numbers, and what stands around numbers. The same ones from the same seed on
 * every platform, so no distribution of the standard library.
 */
class NumberTexts
{
public:
    explicit NumberTexts(std::uint64_t iSeed) : m_random(iSeed) {}

    std::string Make()
    {
        std::string text = OneIn(4) ? Pieces(Blanks, 3) : "";
        text += OneIn(3) ? Pieces(Signs, OneIn(4) ? 2 : 1) : "";
        text += OneIn(5) ? Pieces(Anything, 6) : Number();
        return text + (OneIn(3) ? Pieces(Anything, 3) : "");
    }

private:
    static constexpr const char* Blanks[] = {" ", "\t", "\n", "\v", "\f", "\r", "\xC2\xA0"};
    static constexpr const char* Signs[] = {"+", "-"};
    static constexpr const char* Words[] = {"inf",
                                            "infinity",
                                            "nan",
                                            "nan(1)",
                                            "0x1F",
                                            "0x1.8p3",
                                            "0x",
                                            "2147483647",
                                            "2147483648",
                                            "2147483649",
                                            "4294967296",
                                            "1e308",
                                            "1e309",
                                            "1.7976931348623159e308",
                                            "4.9e-324",
                                            "2.4e-324",
                                            "2.5e-324",
                                            "1e-400",
                                            "2.2250738585072011e-308",
                                            "0e400",
                                            "0.0e-400",
                                            "9007199254740993"};
    static constexpr const char* Anything[] = {"0", "1", "9", "5", ".", "e", "E", "+",   "-",  ",",        "x",
                                               "p", "a", "f", "i", "n", " ", "'", "inf", "d3", "\xC3\xA4", "\t"};

    std::size_t Below(std::size_t iBound) { return static_cast<std::size_t>(m_random() % iBound); }
    bool OneIn(std::size_t iNumber) { return Below(iNumber) == 0; }

    template <std::size_t Size> std::string Pieces(const char* const (&iPieces)[Size], std::size_t iMost)
    {
        std::string text;
        for (std::size_t left = 1 + Below(iMost); left > 0; --left)
            text += iPieces[Below(Size)];
        return text;
    }

    std::string Digits(std::size_t iMost)
    {
        std::string text(Below(iMost + 1), '0');
        if (!OneIn(6))
            for (char& digit : text)
                digit = static_cast<char>('0' + Below(10));
        return text;
    }

    std::string Number()
    {
        if (OneIn(8))
            return Words[Below(std::size(Words))];
        std::string text = Digits(OneIn(8) ? 30 : OneIn(3) ? 11 : 3);
        if (OneIn(2))
            text += "." + Digits(OneIn(6) ? 30 : 4);
        if (OneIn(3))
            text += (OneIn(2) ? "e" : "E") + (OneIn(2) ? Pieces(Signs, 1) : "") + Digits(OneIn(12) ? 6 : 3);
        return text;
    }

    std::mt19937_64 m_random;
};

#endif
