#include "Sizes.hpp"

#include <stdio.h>

enum class Way { left, right, up };

constexpr const char *kLeft = "left"; // used where nothing comes

static int slots[example::kSlots] = {1, 2, 3};

static void trade(int &left, int &right) {
    int kept = left;
    left = right;
    right = kept;
}

static example::Size sized(double width, double height) { return {width, height}; }

static const char *name(Way way) {
    switch (way) {
    case Way::left:
        return kLeft;
    case Way::right:
        if (slots[0] > 1)
            return "swapped";
        else
            slots[0] += 10;
        break;
    default:
        break;
    }
    return slots[0] == 11 ? "raised" : "other";
}

int main() {
    for (int i = 0; i < example::kSlots; ++i) printf("%d\n", slots[i]);
    printf("%s %s\n", name(Way::right), name(Way::right));
    trade(slots[0], slots[1]);
    printf("%g %g\n", example::area(sized(2, 3)), example::kTwoSteps);
    bool ends = slots[0] == 2 && slots[1] == 11;
    if (!ends)
        printf("goes on\n");
    else
        printf("%g\n", [](double value) { return value * 2; }(1.5));
}
