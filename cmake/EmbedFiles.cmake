# Writes the bytes of files into a C++ source that answers embeddedFile(name).
# Run as a script: cmake -DOUTPUT=file.cpp -DLIST=file-with-one-path-a-line -P EmbedFiles.cmake

file(STRINGS "${LIST}" paths)
set(arrays "")
set(rows "")
set(number 0)
foreach(path IN LISTS paths)
    get_filename_component(name "${path}" NAME_WE)
    file(READ "${path}" hex HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${hex}")
    string(APPEND arrays "const unsigned char file${number}[] = {${bytes}};\n")
    string(APPEND rows "    {\"${name}\", file${number}},\n")
    math(EXPR number "${number} + 1")
endforeach()
file(WRITE "${OUTPUT}" "#include \"ui/EmbeddedFiles.h\"

namespace
{

${arrays}
struct File
{
    std::string_view name;
    std::span<const unsigned char> bytes;
};

const File files[] = {
${rows}};

} // namespace

std::span<const unsigned char> embeddedFile(std::string_view name)
{
    for (const File& file : files)
    {
        if (file.name == name)
            return file.bytes;
    }
    return {};
}
")
