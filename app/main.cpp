#include "app/application.h"

int main(int argc, char** argv) {
    return morrowleaf::runApplication(argc, argv);
}
