// Build tool: writes the registration-free manifest to the file named on the command line.
#include "module/manifest.h"

#include <fstream>
#include <iostream>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: write_manifest <file>\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    file << qz::WriteManifest(qz::ClassTable());
    file.close();
    if (!file) std::cerr << "cannot write " << arguments[1] << '\n';
    return file ? 0 : 1;
}
