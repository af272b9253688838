#include "bench/StoreGenerator.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdlib>
#include <exception>
#include <iostream>

/// Writes a store of one of the sizes that the program is measured with.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    const auto size =
        arguments.size() == 3 ? StoreGenerator::sizeNamed(arguments[1]) : std::nullopt;
    if (!size) {
        std::cerr << "usage: corvane_generate_store everyday|lifetime|stress FILE\n";
        return 2;
    }
    if (QFileInfo::exists(arguments[2])) {
        std::cerr << "corvane_generate_store: there is a file already\n";
        return EXIT_FAILURE;
    }
    try {
        StoreGenerator::generate(*size, arguments[2]);
    } catch (const std::exception& exception) {
        std::cerr << "corvane_generate_store: " << exception.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
