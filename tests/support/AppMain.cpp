#include "app/CVApplication.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    CVApplication const application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
