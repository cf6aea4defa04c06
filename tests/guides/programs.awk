# Writes the programs that a page shows into folder, each under the name behind its fence, and prints the names.
# A block of C++ that has no main function is no program.
/^```/ && inside {
    inside = 0
    if (source ~ /int main\(/) {
        printf "%s", source > (folder "/" name ".cpp")
        close(folder "/" name ".cpp")
        printf "%s%s", separator, name
        separator = ";"
    }
    next
}
/^```cpp [A-Za-z_]+$/ { inside = 1; name = $2; source = ""; next }
inside { source = source $0 "\n" }
