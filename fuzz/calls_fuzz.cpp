// Sequences of calls of all exported functions: two octets choose a function, those behind them its arguments. Handles
// are what earlier calls gave, also of a wrong kind; the first octet chooses an allocation that fails.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "fuzz/calls_table.hpp"
#include "fuzz/machine.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

// Values that are put into each other grow without end otherwise.
constexpr int64_t most_memory = 1 << 18;

// With KOVRA_FUZZ_TRACE in the environment each function is named before it is called.
const bool is_traced = std::getenv("KOVRA_FUZZ_TRACE") != nullptr;

void run(Draw input) {
    const uint8_t scarce = input.octet();
    if (scarce >= 0x80)
        fail_allocation(int64_t{scarce & 0x3F} * 3, scarce < 0xC0);
    Machine machine;
    while (!input.is_over() && !machine.is_full()) {
        const Function &function = function_of(static_cast<uint16_t>(input.number(2)));
        if (is_traced)
            std::fprintf(stderr, "%.*s\n", static_cast<int>(function.row->name.size()), function.row->name.data());
        function.call(machine, input);
    }
}

// The calls of an input, as octets: the selector and what its arguments take.
std::vector<std::string> split(const uint8_t *data, size_t size) {
    std::vector<std::string> calls;
    Draw input(data, size);
    size_t begin = 0;
    while (!input.is_over()) {
        function_of(static_cast<uint16_t>(input.number(2))).skip(input);
        const size_t end = size - input.left();
        if (end - begin >= 2)
            calls.emplace_back(reinterpret_cast<const char *>(data) + begin, end - begin);
        begin = end;
    }
    return calls;
}

size_t join(const std::vector<std::string> &calls, uint8_t *data, size_t max_size) {
    size_t size = 1;
    for (const std::string &call : calls) {
        if (call.size() > max_size - size)
            break;
        std::copy(call.begin(), call.end(), data + size);
        size += call.size();
    }
    return size;
}

std::string new_call(std::minstd_rand &random) {
    const Function &function = functions()[random() % functions().size()];
    std::string call = {static_cast<char>(function.selector >> 8), static_cast<char>(function.selector)};
    for (int i = 0; i < 12; ++i)
        call += static_cast<char>(random() % 3 == 0 ? random() % 256 : random() % 4);
    Draw arguments(reinterpret_cast<const uint8_t *>(call.data()) + 2, call.size() - 2);
    function.skip(arguments);
    call.resize(call.size() - arguments.left());
    return call;
}

} // namespace

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(kovra::fuzz::most_memory);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}

// The fuzzer's own mutator; a replay has none, and mutates nothing.
extern "C" __attribute__((weak)) size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t max_size);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t max_size, unsigned seed) {
    using namespace kovra::fuzz;
    std::minstd_rand random(seed);
    if (size < 1 || random() % 3 == 0)
        return LLVMFuzzerMutate(data, size, max_size);
    std::vector<std::string> calls = split(data + 1, size - 1);
    const auto place = [&](size_t more) {
        return calls.begin() + static_cast<std::ptrdiff_t>(random() % (calls.size() + more));
    };
    do {
        if (calls.empty() || random() % 2 == 0) {
            calls.insert(place(1), new_call(random));
            continue;
        }
        const auto chosen = place(0);
        switch (random() % 5) {
        case 0:
            calls.erase(chosen);
            break;
        case 1:
            std::iter_swap(chosen, place(0));
            break;
        case 2: {
            const std::string copy = *chosen;
            calls.insert(place(1), copy);
            break;
        }
        case 3: {
            // Another function with these arguments.
            const std::string other = new_call(random);
            std::copy_n(other.begin(), 2, chosen->begin());
            break;
        }
        default: {
            std::string arguments = chosen->substr(2);
            const size_t length = arguments.size();
            arguments.resize(length + 8);
            arguments.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(arguments.data()), length, arguments.size()));
            chosen->replace(2, std::string::npos, arguments);
        }
        }
    } while (random() % 2 == 0);
    return join(calls, data, max_size);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t *data, size_t size, const uint8_t *other, size_t other_size,
                                            uint8_t *out, size_t max_size, unsigned seed) {
    using namespace kovra::fuzz;
    if (size < 1 || other_size < 1 || max_size < 1)
        return 0;
    std::minstd_rand random(seed);
    std::vector<std::string> calls = split(data + 1, size - 1);
    const std::vector<std::string> others = split(other + 1, other_size - 1);
    const size_t begin = random() % (others.size() + 1);
    const size_t count = std::min<size_t>(random() % 8, others.size() - begin);
    const auto first = others.begin() + static_cast<std::ptrdiff_t>(begin);
    calls.insert(calls.begin() + static_cast<std::ptrdiff_t>(random() % (calls.size() + 1)), first,
                 first + static_cast<std::ptrdiff_t>(count));
    out[0] = data[0];
    return join(calls, out, max_size);
}
