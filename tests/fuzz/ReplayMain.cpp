// Runs a fuzz target without a fuzzer: over its corpus, and over changes of it that are the same
// each time. How many: CORVANE_ROUNDS, or the second argument.

#include "tests/fuzz/FuzzTarget.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <csignal>
#include <random>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What is being tried, for whoever has to look into it.
std::string current;

void run(const std::string& name, const Bytes& input)
{
    current = name;
    QFile file(qEnvironmentVariable("CORVANE_KEEP_INPUT"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::WriteOnly)) {
        file.write(reinterpret_cast<const char*>(input.data()), static_cast<qint64>(input.size()));
        file.close();
    }
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

extern "C" void nameInput(int /*signal*/)
{
    std::fprintf(stderr,
                 "while trying: %s (CORVANE_KEEP_INPUT=FILE keeps each input before it is tried)\n",
                 current.c_str());
    std::_Exit(EXIT_FAILURE);
}

Bytes changed(Bytes input, const Bytes& other, std::mt19937& random)
{
    const auto place = [&random](std::size_t size) {
        return static_cast<std::ptrdiff_t>(size == 0 ? 0 : random() % size);
    };
    for (auto times = random() % 4 + 1; times > 0; --times) {
        const auto at = input.begin() + place(input.size());
        switch (random() % 5) {
        case 0:
            input.insert(at, static_cast<std::uint8_t>(random()));
            break;
        case 1:
            if (at != input.end()) {
                *at = static_cast<std::uint8_t>(*at ^ 1U << random() % 8);
            }
            break;
        case 2:
            input.erase(at, at + place(static_cast<std::size_t>(input.end() - at)));
            break;
        case 3:
            if (at != input.end()) {
                constexpr std::uint8_t special[] = {0, 1, 127, 128, 255};
                *at = special[random() % std::size(special)];
            }
            break;
        default:
            const auto from = other.begin() + place(other.size());
            input.insert(at, from, from + place(static_cast<std::size_t>(other.end() - from)));
        }
    }
    return input;
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGABRT, nameInput);
    const QDir corpus(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("CORVANE_ROUNDS", &isNumber);
    const int rounds = isNumber ? wanted : std::atoi(argc > 2 ? argv[2] : "1000");
    std::vector<Bytes> inputs;
    for (const auto& name : corpus.entryList(QDir::Files, QDir::Name)) {
        QFile file(corpus.filePath(name));
        require(file.open(QIODevice::ReadOnly), "the corpus can be read");
        const auto content = file.readAll();
        inputs.emplace_back(content.begin(), content.end());
        run(name.toStdString(), inputs.back());
    }
    require(!inputs.empty(), "there is a corpus");
    std::mt19937 random(1);
    for (int round = 0; round < rounds; ++round) {
        const auto& input = inputs[random() % inputs.size()];
        const auto& other = inputs[random() % inputs.size()];
        run("round " + std::to_string(round), changed(input, other, random));
    }
    std::printf("%zu inputs of the corpus, %d changed ones\n", inputs.size(), rounds);
}
