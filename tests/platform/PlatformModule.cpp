extern "C" __attribute__((visibility("default"))) int kxModuleAnswer()
{
    return 42;
}
