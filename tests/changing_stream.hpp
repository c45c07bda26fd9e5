// A stream that tells of its size what it is told to, and values whose content stays in it.
#pragma once

#include "tests/asn1_testing.hpp"

namespace kovra::test {

inline constexpr int64_t endless = INT64_MAX;

// A stream that answers each question for its size with the next of the answers, then always the last one, and has
// `given` octets whatever it says.
class Changing {
public:
    Changing(std::vector<int64_t> answers, int64_t given) : given_(given) { set(std::move(answers)); }
    Changing(const Changing &) = delete;
    void set(std::vector<int64_t> answers) {
        answers_ = std::move(answers);
        asked_ = 0;
    }
    kovra_stream *stream() const { return stream_.get(); }
    int64_t reads() const { return reads_; }

private:
    static int32_t read(void *user, void *buffer, int32_t size, int32_t *out_count) {
        Changing &self = *static_cast<Changing *>(user);
        ++self.reads_;
        *out_count = static_cast<int32_t>(std::min<int64_t>(size, self.given_ - self.position_));
        std::memset(buffer, 'z', static_cast<size_t>(*out_count));
        self.position_ += self.given_ != endless ? *out_count : 0;
        return 1;
    }
    static int32_t write(void *, const void *, int32_t size, int32_t *out_count) {
        *out_count = size;
        return 1;
    }
    static int64_t control(void *user, int32_t command, int64_t argument) {
        Changing &self = *static_cast<Changing *>(user);
        if (command == KOVRA_STREAM_SIZE)
            return self.answers_[std::min(self.asked_++, self.answers_.size() - 1)];
        self.position_ = command == KOVRA_STREAM_SEEK ? argument : 0;
        return 1;
    }

    std::vector<int64_t> answers_;
    size_t asked_ = 0;
    int64_t given_;
    int64_t position_ = 0;
    int64_t reads_ = 0;
    Stream stream_ = [this] {
        const kovra_stream_callbacks callbacks = {read, write, control, nullptr};
        return Stream(kovra_stream_new_callbacks(&callbacks, this, nullptr));
    }();
};

inline Value string_over(kovra_stream *stream) {
    return {4, kovra_asn1_octetstring_newstream(stream)};
}
inline Value bits_over(kovra_stream *stream) {
    kovra_asn1_value *bits = nullptr;
    const Input input(octets("03 03 00 41 42"));
    EXPECT_EQ(kovra_asn1_decode_bitstring_ex(input.stream(), stream, &bits, nullptr, nullptr), 1);
    return {3, bits};
}

} // namespace kovra::test
