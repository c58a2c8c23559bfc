#pragma once

#include <string>

/// What nativeModulePath() returns in a program that links FakeNativeModule.cpp: the editor looks
/// for its pictures beside this file.
std::string &fakeNativeModulePath();
