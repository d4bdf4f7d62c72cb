#include "engine/KindTables.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace quillon {

namespace {

/// Words, set apart by single spaces, that all mean one kind.
struct KindWords {
    FileKind kind;
    std::string_view words;
};

constexpr auto extensionKinds = std::to_array<KindWords>({
    {FileKind::image, "jpg jpeg jpe jfif png apng gif bmp tif tiff webp heic heif avif jxl svg psd "
                      "psb xcf kra ora ai "
                      "cdr eps ico icns cr2 cr3 nef nrw arw dng raf orf rw2 pef srw 3fr iiq gpr "
                      "erf mef mos rwl raw"},
    {FileKind::video,
     "mp4 m4v mov mkv webm avi wmv flv mpg mpeg m2v ogv 3gp mts m2ts vob mxf asf rm rmvb divx"},
    {FileKind::audio,
     "mp3 m4a m4b m4p m4r aac flac wav wave ogg oga opus wma aif aiff alac caf mka weba mid midi"},
    {FileKind::pdf, "pdf"},
    {FileKind::archive,
     "zip zipx 7z rar tar gz tgz bz2 tbz tbz2 xz txz zst tzst lz lz4 lzma br cab cpio sit sitx hqx "
     "xip alz dmg sparseimage iso img toast"},
    {FileKind::code,
     "ada adb ads ahk applescript as asm asp aspx au3 awk bas bash bat bzl c c++ cbl cc cjs cl clj "
     "cljc cljs cmake cmd cob coffee command cpp cr cs csh css cts cu cxx cython d dart dockerfile "
     "dpr ejs el elm erb erl ex exs f f03 f08 f77 f90 f95 fish for frag fs fsi fsx gd glsl gn go "
     "gql gradle graphql groovy gs h h++ haml hcl hh hlsl hpp hrl hs hx hxx ino ipynb java jl js "
     "jsp jsx ksh kt kts less lhs lisp lua m m4 metal mjs mk ml mli mm mustache nim ninja nix pas "
     "pde php php3 php4 php5 phtml pl pm pp pri pro proto ps1 psd1 psm1 purs pxd py pyi pyw pyx "
     "qml r raku rb rkt rs s sass sc scala scm scpt scss sed sh slim sol sql styl sv svelte svh "
     "swift tcl tcsh tf thrift ts tsx twig v vala vb vbs vert vhdl vue wat wgsl zig zsh"},
    {FileKind::document,
     "txt text md markdown rst adoc asciidoc org tex rtf html htm xhtml mht mhtml webarchive json "
     "jsonl ndjson xml yaml yml toml ini conf cfg properties plist strings csv tsv log srt vtt eml "
     "msg mbox ics vcf doc docx docm dot dotx odt ott fodt pages wpd wps hwp hwpx xls xlsx xlsm "
     "xlsb ods ots fods numbers ppt pptx pptm pps ppsx odp otp fodp key odg vsd vsdx pub one mpp "
     "gdoc gsheet gslides epub mobi azw azw3 fb2 lit prc cbz cbr cb7 cbt djvu djv ps xps oxps chm "
     "m3u m3u8 pls cue"},
    // Programs and their parts are built on archives, and must not be unpacked like those. Fonts,
    // models, shortcuts and signatures are text to the database, or office templates.
    {FileKind::other,
     "jar war ear aar apk apkm xapk aab ipa deb udeb rpm appimage snap flatpak flatpakref exe msi "
     "msix appx pkg mpkg crx xpi vsix whl gem nupkg oxt so dll dylib o a lib class pyc wasm "
     "torrent "
     "desktop url webloc lnk ttf otf ttc woff woff2 eot pfa pfb stl obj step stp gltf glb dae ply "
     "fbx 3mf kmz pkpass gpg pgp sig pem crt cer p7m p7s"},
});

constexpr auto nameKinds = std::to_array<KindWords>({
    {FileKind::code,
     "makefile gnumakefile cmakelists.txt meson.build meson_options.txt dockerfile containerfile "
     "jenkinsfile vagrantfile rakefile gemfile procfile brewfile podfile fastfile justfile "
     "sconstruct sconscript configure gradlew"},
    {FileKind::document,
     "readme license licence copying changelog changes authors contributors credits install news "
     "todo notice history thanks"},
});

struct TypeKind {
    std::string_view type; ///< a MIME type, or, ending in "*", the beginning of some
    FileKind kind;
};

/// The first that fits holds.
constexpr auto typeKinds = std::to_array<TypeKind>({
    {"image/vnd.djvu*", FileKind::document},
    {"image/*", FileKind::image},
    {"application/x-krita", FileKind::image},
    {"application/illustrator", FileKind::image},
    {"video/*", FileKind::video},
    {"application/vnd.rn-realmedia*", FileKind::video},
    {"application/mxf", FileKind::video},
    {"application/vnd.ms-asf", FileKind::video},
    {"application/x-matroska", FileKind::video},
    {"audio/*", FileKind::audio},
    {"application/pdf", FileKind::pdf},
    {"application/zip", FileKind::archive},
    {"application/gzip", FileKind::archive},
    {"application/zstd", FileKind::archive},
    {"application/zlib", FileKind::archive},
    {"application/vnd.rar", FileKind::archive},
    {"application/vnd.ms-cab-compressed", FileKind::archive},
    {"application/x-7z-compressed", FileKind::archive},
    {"application/x-ace", FileKind::archive},
    {"application/x-alz", FileKind::archive},
    {"application/x-apple-diskimage", FileKind::archive},
    {"application/x-ar", FileKind::archive},
    {"application/x-archive", FileKind::archive},
    {"application/x-arj", FileKind::archive},
    {"application/x-bzip*", FileKind::archive},
    {"application/x-cd-image", FileKind::archive},
    {"application/x-compress*", FileKind::archive},
    {"application/x-cpio*", FileKind::archive},
    {"application/x-lha", FileKind::archive},
    {"application/x-lrzip*", FileKind::archive},
    {"application/x-lz4*", FileKind::archive},
    {"application/x-lzip*", FileKind::archive},
    {"application/x-lzma*", FileKind::archive},
    {"application/x-lzop", FileKind::archive},
    {"application/x-raw-disk-image*", FileKind::archive},
    {"application/x-stuffit*", FileKind::archive},
    {"application/x-tar", FileKind::archive},
    {"application/x-tarz", FileKind::archive},
    {"application/x-tzo", FileKind::archive},
    {"application/x-xar", FileKind::archive},
    {"application/x-xz*", FileKind::archive},
    {"application/x-zoo", FileKind::archive},
    {"application/x-zstd*", FileKind::archive},
    {"text/rust", FileKind::code},
    {"text/javascript", FileKind::code},
    {"text/tcl", FileKind::code},
    {"text/vbscript", FileKind::code},
    {"text/vnd.wap.wmlscript", FileKind::code},
    {"text/x-adasrc", FileKind::code},
    {"text/x-c++*", FileKind::code},
    {"text/x-chdr", FileKind::code},
    {"text/x-cobol", FileKind::code},
    {"text/x-crystal", FileKind::code},
    {"text/x-csrc", FileKind::code},
    {"text/x-eiffel", FileKind::code},
    {"text/x-fortran", FileKind::code},
    {"text/x-idl", FileKind::code},
    {"text/x-modelica", FileKind::code},
    {"text/x-objc*", FileKind::code},
    {"text/x-ocaml", FileKind::code},
    {"text/x-pascal", FileKind::code},
    {"text/x-python*", FileKind::code},
    {"text/x-scheme", FileKind::code},
    {"text/x-verilog", FileKind::code},
    {"text/x-vhdl", FileKind::code},
    {"application/javascript", FileKind::code},
    {"application/x-asp", FileKind::code},
    {"application/x-awk", FileKind::code},
    {"application/x-gdscript", FileKind::code},
    {"application/x-godot-shader", FileKind::code},
    {"application/x-perl", FileKind::code},
    {"application/x-php", FileKind::code},
    {"application/x-ruby", FileKind::code},
    {"application/x-shellscript", FileKind::code},
    {"text/*", FileKind::document},
    {"message/*", FileKind::document},
    {"application/json", FileKind::document},
    {"application/epub+zip", FileKind::document},
    {"application/msword*", FileKind::document},
    {"application/oxps", FileKind::document},
    {"application/postscript", FileKind::document},
    {"application/rtf", FileKind::document},
    {"application/vnd.amazon.*", FileKind::document},
    {"application/vnd.apple.keynote", FileKind::document},
    {"application/vnd.apple.numbers", FileKind::document},
    {"application/vnd.apple.pages", FileKind::document},
    {"application/vnd.comicbook*", FileKind::document},
    {"application/vnd.lotus-*", FileKind::document},
    {"application/vnd.ms-excel*", FileKind::document},
    {"application/vnd.ms-htmlhelp", FileKind::document},
    {"application/vnd.ms-powerpoint*", FileKind::document},
    {"application/vnd.ms-publisher", FileKind::document},
    {"application/vnd.ms-visio*", FileKind::document},
    {"application/vnd.ms-word*", FileKind::document},
    {"application/vnd.ms-works", FileKind::document},
    {"application/vnd.ms-xpsdocument", FileKind::document},
    {"application/vnd.oasis.opendocument.*", FileKind::document},
    {"application/vnd.openxmlformats-officedocument.*", FileKind::document},
    {"application/vnd.stardivision.*", FileKind::document},
    {"application/vnd.sun.xml.*", FileKind::document},
    {"application/vnd.visio", FileKind::document},
    {"application/vnd.wordperfect", FileKind::document},
    {"application/x-abiword", FileKind::document},
    {"application/x-gnumeric", FileKind::document},
    {"application/x-hwp*", FileKind::document},
    {"application/x-kpresenter", FileKind::document},
    {"application/x-kspread", FileKind::document},
    {"application/x-kword", FileKind::document},
    {"application/x-mimearchive", FileKind::document},
    {"application/x-mobipocket-ebook", FileKind::document},
    {"application/x-mswrite", FileKind::document},
});

template <typename Predicate>
bool anyWord(std::string_view words, Predicate&& predicate) {
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        if (predicate(QLatin1StringView(words.substr(0, end)))) {
            return true;
        }
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

bool holdsWord(std::string_view words, QStringView text) {
    return anyWord(words, [&](QLatin1StringView word) {
        return word.size() == text.size() && text.compare(word, Qt::CaseInsensitive) == 0;
    });
}

std::optional<FileKind> kindAmong(std::span<const KindWords> table, QStringView text) {
    const auto found = std::ranges::find_if(
        table, [&](const KindWords& row) { return holdsWord(row.words, text); });
    return found == table.end() ? std::nullopt : std::optional(found->kind);
}

bool fits(std::string_view pattern, QStringView type) {
    return pattern.ends_with('*')
               ? type.startsWith(QLatin1StringView(pattern.substr(0, pattern.size() - 1)))
               : type == QLatin1StringView(pattern);
}

} // namespace

std::optional<FileKind> kindByExtension(QStringView extension) {
    return kindAmong(extensionKinds, extension);
}

std::optional<FileKind> kindByName(QStringView fileName) {
    return kindAmong(nameKinds, fileName);
}

bool hasKnownNames(QStringView extension) {
    return std::ranges::any_of(nameKinds, [&](const KindWords& row) {
        return anyWord(row.words, [&](QLatin1StringView name) {
            return name.size() > extension.size() &&
                   name.at(name.size() - extension.size() - 1) == u'.' &&
                   extension.compare(name.last(extension.size()), Qt::CaseInsensitive) == 0;
        });
    });
}

std::optional<FileKind> kindByContentType(QStringView type) {
    const auto* const found =
        std::ranges::find_if(typeKinds, [&](const TypeKind& row) { return fits(row.type, type); });
    return found == typeKinds.end() ? std::nullopt : std::optional(found->kind);
}

} // namespace quillon
