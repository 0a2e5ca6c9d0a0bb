#include "platform/data/like_pattern.h"

#include "platform/data/text_scanner.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/fold.h"

#include <algorithm>
#include <vector>

namespace data
{

namespace
{

/// A matcher's buffer for folded text is given back when one long text has blown it up.
constexpr size_t kMostKeptCharacters = size_t(1) << 16;

/// The members of a class in square brackets, as ranges of weights.
struct CharacterClass {
    struct Range {
        quint32 first;
        quint32 last;
    };
    bool isNegated = false;
    std::vector<Range> ranges;

    bool Contains(char32_t folded) const
    {
        const quint32 weight = text::WeightOf(folded);
        const bool isMember = std::any_of(ranges.begin(), ranges.end(), [weight](const Range &range) {
            return weight >= range.first && weight <= range.last;
        });
        return isMember != isNegated;
    }
};

struct Token {
    enum class Kind { Literal, AnyOne, Class, AnyRun };
    Kind kind;
    char32_t literal = 0;
    size_t classIndex = 0;
};

/// Takes a pattern apart into tokens.
class PatternParser
{
public:
    explicit PatternParser(QStringView pattern) : m_pattern(pattern) {}

    void Parse()
    {
        qsizetype literalStart = 0;
        qsizetype at = 0;
        while (at < m_pattern.size()) {
            const QChar c = m_pattern[at];
            if (c != u'%' && c != u'_' && c != u'[') {
                ++at;
                continue;
            }
            AddLiteral(m_pattern.sliced(literalStart, at - literalStart));
            if (c == u'[')
                at = AddClass(at + 1);
            else
                AddWildcard(c == u'%' ? Token::Kind::AnyRun : Token::Kind::AnyOne), ++at;
            literalStart = at;
        }
        AddLiteral(m_pattern.sliced(literalStart));
    }

    std::vector<Token> tokens;
    std::vector<CharacterClass> classes;

private:
    [[noreturn]] static void RaiseInvalid() { throw RuntimeError(RuntimeError::InvalidStatement); }

    void AddLiteral(QStringView literal)
    {
        for (const char32_t c : text::Fold(literal).folded)
            tokens.push_back({.kind = Token::Kind::Literal, .literal = c});
    }

    /// Keeps one `%` behind all `_` of a run of both: "%_%" is "_%".
    void AddWildcard(Token::Kind kind)
    {
        const bool followsRun = !tokens.empty() && tokens.back().kind == Token::Kind::AnyRun;
        if (!followsRun)
            tokens.push_back({.kind = kind});
        else if (kind == Token::Kind::AnyOne)
            tokens.insert(tokens.end() - 1, {.kind = kind});
    }

    /// Reads a class from behind its bracket; the position behind it.
    qsizetype AddClass(qsizetype at)
    {
        const qsizetype end = m_pattern.indexOf(u']', at);
        if (end < 0)
            RaiseInvalid();
        QStringView members = m_pattern.sliced(at, end - at);
        CharacterClass characterClass;
        if (members.startsWith(u'!') || members.startsWith(u'^')) {
            characterClass.isNegated = true;
            members = members.sliced(1);
        }
        const text::FoldedText folded = text::Fold(members);
        if (folded.folded.empty())
            RaiseInvalid();
        if (folded.folded.size() == 1 && !characterClass.isNegated) {
            tokens.push_back({.kind = Token::Kind::Literal, .literal = folded.folded.front()});
            return end + 1;
        }
        for (size_t i = 0; i < folded.folded.size(); ++i) {
            // A full-width hyphen folds to the same character, but makes no range.
            const bool isRange = i + 2 < folded.folded.size() && members[folded.starts[i + 1]] == u'-';
            const quint32 first = text::WeightOf(folded.folded[i]);
            const quint32 last = isRange ? text::WeightOf(folded.folded[i + 2]) : first;
            if (first > last)
                RaiseInvalid();
            characterClass.ranges.push_back({first, last});
            if (isRange)
                i += 2;
        }
        tokens.push_back({.kind = Token::Kind::Class, .classIndex = classes.size()});
        classes.push_back(std::move(characterClass));
        return end + 1;
    }

    QStringView m_pattern;
};

bool IsLiteralToken(const Token &token) { return token.kind == Token::Kind::Literal; }

/// The literal characters from a token on.
std::u32string LiteralFrom(const std::vector<Token> &tokens, size_t at)
{
    std::u32string literal;
    for (; at < tokens.size() && IsLiteralToken(tokens[at]); ++at)
        literal.push_back(tokens[at].literal);
    return literal;
}

std::u32string LongestLiteral(const std::vector<Token> &tokens)
{
    std::u32string longest;
    for (size_t at = 0; at < tokens.size();) {
        std::u32string literal = LiteralFrom(tokens, at);
        at += literal.size() + 1;
        if (literal.size() > longest.size())
            longest = std::move(literal);
    }
    return longest;
}

bool IsAnyRun(const Token &token) { return token.kind == Token::Kind::AnyRun; }

} // namespace

struct LikePattern::Compiled {
    std::vector<Token> tokens;
    std::vector<CharacterClass> classes;
    std::u32string prefix;
    bool isLiteral;
    bool isPrefixRange;
    bool isContainment; ///< `%`, a literal, `%`: a text that holds the literal matches
    TextScanner scanner;

    explicit Compiled(PatternParser &&parsed)
        : tokens(std::move(parsed.tokens)), classes(std::move(parsed.classes)),
          prefix(LiteralFrom(tokens, 0)), isLiteral(prefix.size() == tokens.size()),
          isPrefixRange(prefix.size() + 1 == tokens.size() && IsAnyRun(tokens.back())),
          isContainment(tokens.size() > 2 && IsAnyRun(tokens.front()) && IsAnyRun(tokens.back()) &&
                        std::all_of(tokens.begin() + 1, tokens.end() - 1, IsLiteralToken)),
          scanner(LongestLiteral(tokens))
    {
    }

    bool MatchesOne(const Token &token, char32_t folded) const
    {
        switch (token.kind) {
        case Token::Kind::Literal: return token.literal == folded;
        case Token::Kind::Class: return classes[token.classIndex].Contains(folded);
        case Token::Kind::AnyOne: return true;
        case Token::Kind::AnyRun: break;
        }
        return false;
    }

    /// Whether a character of ASCII at an end of the text fails what stands for it in front of the first
    /// `%` or behind the last. It is a whole character wherever it stands, so nothing needs decoding.
    bool FailsAtEnds(std::string_view utf8) const
    {
        const size_t length = std::min(tokens.size(), utf8.size());
        const auto fails = [this](const Token &token, char c) {
            return !MatchesOne(token, text::FoldCodePoint(static_cast<char32_t>(c)));
        };
        const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
        for (size_t i = 0; i < length && !IsAnyRun(tokens[i]) && isAscii(utf8[i]); ++i)
            if (fails(tokens[i], utf8[i]))
                return true;
        for (size_t i = 1; i <= length; ++i) {
            const Token &token = tokens[tokens.size() - i];
            const char c = utf8[utf8.size() - i];
            if (IsAnyRun(token) || !isAscii(c))
                return false;
            if (fails(token, c))
                return true;
        }
        return false;
    }

    /// Each `%` takes as little as it can; only the last one met is ever widened, for an earlier one
    /// could not help where a later one failed.
    bool Matches(std::u32string_view folded) const
    {
        constexpr size_t kNone = SIZE_MAX;
        size_t token = 0;
        size_t at = 0;
        size_t runToken = kNone;
        size_t runEnd = 0;
        while (at < folded.size()) {
            if (token < tokens.size() && IsAnyRun(tokens[token])) {
                runToken = token++;
                runEnd = at;
            } else if (token < tokens.size() && MatchesOne(tokens[token], folded[at])) {
                ++token;
                ++at;
            } else if (runToken != kNone) {
                if (runToken + 1 == tokens.size())
                    return true;
                token = runToken + 1;
                at = ++runEnd;
            } else {
                return false;
            }
        }
        while (token < tokens.size() && IsAnyRun(tokens[token]))
            ++token;
        return token == tokens.size();
    }
};

LikePattern::LikePattern(QStringView pattern)
{
    PatternParser parser(pattern);
    parser.Parse();
    d = std::make_unique<Compiled>(std::move(parser));
}

LikePattern::~LikePattern() = default;
LikePattern::LikePattern(LikePattern &&) noexcept = default;
LikePattern &LikePattern::operator=(LikePattern &&) noexcept = default;

bool LikePattern::Matches(std::string_view utf8) const
{
    const TextScanner::Finding finding = d->scanner.Find(utf8);
    if (finding == TextScanner::Finding::Absent)
        return false;
    if (finding == TextScanner::Finding::Certain && d->isContainment)
        return true;
    if (d->FailsAtEnds(utf8))
        return false;
    thread_local std::u32string folded;
    text::FoldUtf8(utf8, folded);
    const bool matches = d->Matches(folded);
    if (folded.capacity() > kMostKeptCharacters)
        folded = {};
    return matches;
}

bool LikePattern::MayMatchWithin(std::string_view bytes) const
{
    return d->scanner.Find(bytes) != TextScanner::Finding::Absent;
}

bool LikePattern::FindPlaces(std::string_view bytes, std::vector<size_t> &places, size_t most) const
{
    return d->scanner.FindPlaces(bytes, places, most);
}

const std::u32string &LikePattern::Prefix() const { return d->prefix; }

bool LikePattern::IsLiteral() const { return d->isLiteral; }

bool LikePattern::IsPrefixRange() const { return d->isPrefixRange; }

} // namespace data
