// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>

#include "host/server/program/Program.h"

int main(int count, char** words) {
    using namespace Tarvik::Server;
    try {
        const ProgramParts parts{ReadEnvironment(), AskPassword, std::cout, std::cerr};
        return RunProgram({words + 1, words + count}, parts);
    } catch (const std::exception& error) {
        std::cerr << "seaplan-server: " << error.what() << "\n";
        return 1;
    }
}
