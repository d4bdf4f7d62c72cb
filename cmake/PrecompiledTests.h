#pragma once

#include "Precompiled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
