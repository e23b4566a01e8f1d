// The quillet tool: see cli/tool.h.
int main() { return 0; }
