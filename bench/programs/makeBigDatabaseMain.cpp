#include "makeBigDatabase.h"

#include <cstdlib>
#include <exception>
#include <iostream>

// make_big_database OUT.fwk [RECORDS] [COLUMNS]
int main(int argc, char** argv) {
    if (argc < 2 || argc > 4) {
        std::cerr << "usage: make_big_database OUT.fwk [RECORDS] [COLUMNS]\n";
        return 2;
    }
    const int records = argc > 2 ? std::atoi(argv[2]) : bench::mostRecords;
    const int columns = argc > 3 ? std::atoi(argv[3]) : bench::mostColumns;
    if (records < 0 || columns < 1) {
        std::cerr << "make_big_database: RECORDS and COLUMNS are numbers, and one column is the least\n";
        return 2;
    }
    try {
        bench::makeBigDatabase(argv[1], records, columns);
    } catch (const std::exception& error) {
        std::cerr << "make_big_database: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
