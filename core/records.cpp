#include "core/records.h"

#include <bit>
#include <cstring>

namespace tessera {

namespace {

// Little-endian field access at a byte offset of one record.
class FieldWriter {
public:
    explicit FieldWriter(RecordBytes& bytes) : m_bytes(bytes) {}
    void byte(int offset, uint8_t value) { m_bytes[offset] = value; }
    void int16(int offset, int16_t value) {
        const auto u = static_cast<uint16_t>(value);
        m_bytes[offset] = static_cast<uint8_t>(u & 0xFF);
        m_bytes[offset + 1] = static_cast<uint8_t>(u >> 8);
    }
    void single(int offset, float value) {
        const auto u = std::bit_cast<uint32_t>(value);
        for (int i = 0; i < 4; ++i)
            m_bytes[offset + i] = static_cast<uint8_t>(u >> (8 * i));
    }
    // Left-aligned, padded with blanks; longer texts are cut to the field.
    void text(int offset, int length, const std::string& value) {
        for (int i = 0; i < length; ++i)
            m_bytes[offset + i] =
                i < static_cast<int>(value.size()) ? static_cast<uint8_t>(value[i]) : ' ';
    }

private:
    RecordBytes& m_bytes;
};

class FieldReader {
public:
    explicit FieldReader(const RecordBytes& bytes) : m_bytes(bytes) {}
    uint8_t byte(int offset) const { return m_bytes[offset]; }
    int16_t int16(int offset) const {
        return static_cast<int16_t>(m_bytes[offset] | (m_bytes[offset + 1] << 8));
    }
    float single(int offset) const {
        uint32_t u = 0;
        for (int i = 0; i < 4; ++i)
            u |= static_cast<uint32_t>(m_bytes[offset + i]) << (8 * i);
        return std::bit_cast<float>(u);
    }
    std::string text(int offset, int length) const {
        return {reinterpret_cast<const char*>(m_bytes.data()) + offset,
                static_cast<size_t>(length)};
    }

private:
    const RecordBytes& m_bytes;
};

// Offsets of the header's fields.
constexpr int NameOffset = 7;
constexpr int TakeCountOffset = 37;
constexpr int LogDateOffset = 49;
constexpr int LogCodeOffset = 409;
constexpr int LogScoreOffset = 445;
constexpr int ReservedOffset = 589;

// The two position tables that both test shapes share.
constexpr int ItemTableOffset = 40;
constexpr int ByteTableOffset = 640;

} // namespace

ProgressHeader::ProgressHeader() {
    LogDates.fill(std::string(DateFieldLength, '\0'));
}

RecordBytes EncodeHeader(const ProgressHeader& h) {
    RecordBytes bytes{};
    FieldWriter w(bytes);
    w.byte(0, h.ScrambleQuestions);
    w.byte(1, h.SoundOn);
    w.byte(2, h.TimerActive);
    w.byte(3, h.IncludeProgressReport);
    w.byte(4, h.PassingGrade);
    w.byte(5, h.SuspendedTestRecord);
    w.byte(6, h.SuspendedExamRecord);
    w.text(NameOffset, UserNameLength, h.UserName);
    for (int i = 1; i <= TakeCounterCount; ++i)
        w.byte(TakeCountOffset + i - 1, h.TakeCounts[i]);
    for (int s = 1; s <= LogSlotCount; ++s) {
        w.text(LogDateOffset + (s - 1) * DateFieldLength, DateFieldLength, h.LogDates[s]);
        w.byte(LogCodeOffset + s - 1, h.LogCodes[s]);
        w.single(LogScoreOffset + (s - 1) * 4, h.LogScores[s]);
    }
    std::memcpy(bytes.data() + ReservedOffset, h.Reserved.data(), ReservedHeaderBytes);
    return bytes;
}

ProgressHeader DecodeHeader(const RecordBytes& bytes) {
    ProgressHeader h;
    const FieldReader r(bytes);
    h.ScrambleQuestions = r.byte(0);
    h.SoundOn = r.byte(1);
    h.TimerActive = r.byte(2);
    h.IncludeProgressReport = r.byte(3);
    h.PassingGrade = r.byte(4);
    h.SuspendedTestRecord = r.byte(5);
    h.SuspendedExamRecord = r.byte(6);
    h.UserName = r.text(NameOffset, UserNameLength);
    for (int i = 1; i <= TakeCounterCount; ++i)
        h.TakeCounts[i] = r.byte(TakeCountOffset + i - 1);
    for (int s = 1; s <= LogSlotCount; ++s) {
        h.LogDates[s] = r.text(LogDateOffset + (s - 1) * DateFieldLength, DateFieldLength);
        h.LogCodes[s] = r.byte(LogCodeOffset + s - 1);
        h.LogScores[s] = r.single(LogScoreOffset + (s - 1) * 4);
    }
    std::memcpy(h.Reserved.data(), bytes.data() + ReservedOffset, ReservedHeaderBytes);
    return h;
}

RecordBytes EncodeReviewTest(const ReviewTestRecord& t) {
    RecordBytes bytes{};
    FieldWriter w(bytes);
    w.byte(0, t.Topic);
    w.text(1, DateFieldLength, t.Date);
    w.int16(11, t.Position);
    w.int16(13, t.Furthest);
    w.int16(15, t.ItemCount);
    w.byte(17, t.TestType);
    w.single(18, t.Score);
    w.single(22, t.TriesRatio);
    w.byte(26, t.Scrambled);
    w.single(27, t.MinutesUsed);
    for (int i = 1; i <= 3; ++i) {
        w.int16(31 + (i - 1) * 2, t.Tally[i]);
        w.byte(37 + i - 1, t.WishesLeft[i]);
    }
    for (int k = 1; k <= PositionSlots; ++k) {
        w.int16(ItemTableOffset + (k - 1) * 2, t.Items[k]);
        w.byte(ByteTableOffset + k - 1, t.Misses[k]);
    }
    return bytes;
}

ReviewTestRecord DecodeReviewTest(const RecordBytes& bytes) {
    ReviewTestRecord t;
    const FieldReader r(bytes);
    t.Topic = r.byte(0);
    t.Date = r.text(1, DateFieldLength);
    t.Position = r.int16(11);
    t.Furthest = r.int16(13);
    t.ItemCount = r.int16(15);
    t.TestType = r.byte(17);
    t.Score = r.single(18);
    t.TriesRatio = r.single(22);
    t.Scrambled = r.byte(26);
    t.MinutesUsed = r.single(27);
    for (int i = 1; i <= 3; ++i) {
        t.Tally[i] = r.int16(31 + (i - 1) * 2);
        t.WishesLeft[i] = r.byte(37 + i - 1);
    }
    for (int k = 1; k <= PositionSlots; ++k) {
        t.Items[k] = r.int16(ItemTableOffset + (k - 1) * 2);
        t.Misses[k] = r.byte(ByteTableOffset + k - 1);
    }
    return t;
}

RecordBytes EncodeExam(const ExamRecord& e) {
    RecordBytes bytes{};
    FieldWriter w(bytes);
    w.byte(0, e.Kind);
    w.text(1, DateFieldLength, e.Date);
    w.int16(11, e.Position);
    w.int16(13, e.ItemCount);
    w.int16(15, e.AnsweredCount);
    w.byte(17, e.ExamType);
    w.single(18, e.Score);
    w.int16(22, e.UnsureCount);
    w.byte(24, e.Scrambled);
    w.single(25, e.MinutesUsed);
    w.byte(29, e.TimeLimit);
    w.byte(30, e.Structured);
    for (int t = 1; t <= TopicCount; ++t)
        w.byte(31 + t - 1, e.Topics[t]);
    for (int k = 1; k <= PositionSlots; ++k) {
        w.int16(ItemTableOffset + (k - 1) * 2, e.Items[k]);
        w.byte(ByteTableOffset + k - 1, e.AnswerCodes[k]);
    }
    return bytes;
}

ExamRecord DecodeExam(const RecordBytes& bytes) {
    ExamRecord e;
    const FieldReader r(bytes);
    e.Kind = r.byte(0);
    e.Date = r.text(1, DateFieldLength);
    e.Position = r.int16(11);
    e.ItemCount = r.int16(13);
    e.AnsweredCount = r.int16(15);
    e.ExamType = r.byte(17);
    e.Score = r.single(18);
    e.UnsureCount = r.int16(22);
    e.Scrambled = r.byte(24);
    e.MinutesUsed = r.single(25);
    e.TimeLimit = r.byte(29);
    e.Structured = r.byte(30);
    for (int t = 1; t <= TopicCount; ++t)
        e.Topics[t] = r.byte(31 + t - 1);
    for (int k = 1; k <= PositionSlots; ++k) {
        e.Items[k] = r.int16(ItemTableOffset + (k - 1) * 2);
        e.AnswerCodes[k] = r.byte(ByteTableOffset + k - 1);
    }
    return e;
}

uint8_t EncodeAnswerCode(int answer, bool wrong, int answerCount, bool unsure) {
    int code = answer;
    if (wrong)
        code += 5;
    if (answerCount == 2)
        code += 10;
    else if (answerCount >= 3)
        code += 20;
    if (unsure)
        code += UnsureMark;
    return static_cast<uint8_t>(code);
}

std::optional<AnswerCode> DecodeAnswerCode(uint8_t code) {
    int base = code;
    bool unsure = false;
    if (code >= 64 && code <= 93) {
        base = code - UnsureMark;
        unsure = true;
    }
    if (base < 1 || base > 30)
        return std::nullopt;
    // Six bands of five: right and wrong for one, two, and three or more answers.
    const int band = (base - 1) / 5;
    AnswerCode decoded;
    decoded.answer = base - 5 * band;
    decoded.right = band % 2 == 0;
    decoded.answerCount = band / 2 + 1;
    decoded.unsure = unsure;
    return decoded;
}

} // namespace tessera
