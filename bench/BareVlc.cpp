// The engine library in an empty window of 1280 x 720 and nothing around it: bare-vlc FILE. The measure of what a
// window of ours may cost beside playing. Takes the output that the player takes on a machine without a graphics card.
#include <array>
#include <cstdio>
#include <unistd.h>
#include <vlc/vlc.h>
#include <xcb/xcb.h>

int main(int argc, char** argv)
{
    auto* const connection = xcb_connect(nullptr, nullptr);
    if (argc != 2 || xcb_connection_has_error(connection) != 0) {
        std::fputs("bare-vlc FILE, on a display\n", stderr);
        return 2;
    }
    const auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const auto window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1280, 720, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &screen->black_pixel);
    xcb_map_window(connection, window);
    xcb_flush(connection);

    const std::array arguments = { "--quiet", "--no-video-title-show", "--no-lua", "--gl=none", "--gles2=none" };
    auto* const instance = libvlc_new(arguments.size(), arguments.data());
    auto* const media = libvlc_media_new_path(instance, argv[1]);
    libvlc_media_add_option(media, ":avcodec-hw=none");
    auto* const player = libvlc_media_player_new_from_media(media);
    libvlc_media_player_set_xwindow(player, window);
    libvlc_media_player_play(player);
    pause();
}
