<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 控件展示</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>精确</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>易读</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>调暗</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>按名称筛选</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 / %2 张图像</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>库中的文本</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;两位数没有标记</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;切换到一号摄像机</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;切换到二号摄像机</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;切换到三号摄像机</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>100 中的 0、1、50 和 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>大于窗口的图片</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>单个无文本的标签页</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>所有信号源已重新连接。</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>处于最大值</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>处于最小值，加号和减号</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>自动凸起</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>指针在后退上</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>按下后退</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>在内容旁</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>素材箱 %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>方框</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>缓冲</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>总线 %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>总线 A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>按钮和标签</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>摄像机 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>摄像机 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>复选框和单选按钮</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>点击此标签</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>可点击的标签</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>客户端</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>片段 %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>片段名称</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>片段播放器</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>命令链接</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>容器</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>硬切</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>延迟按钮</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>旋钮</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>叠化</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>按下向下</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>可编辑，带图标</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>扁平</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>有焦点</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>半秒</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>指针在手柄上</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>按下手柄</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>水平线</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>水平进度条</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>水平滑块</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>指针悬停</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>反向</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>电平、时间、日期</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>立即弹出菜单</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>箭头弹出菜单</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>混合选择</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>无按钮</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>无编号</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>无刻度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>不可切换：无延迟</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>不可编辑</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>不可编辑、可编辑</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>不可编辑，带图标</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>播出中</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>开启，指针悬停</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>开启，按下</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>展开的列表</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>打开上次的演出</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>使用相同边框的其他控件</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>在 %1 之上</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>在内容之上</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>部分选中</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>加号和减号</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>X 位置</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Y 位置</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>进度条</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>代理样式</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>按压按钮</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>按编号设置的单选按钮</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>凸起</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>渲染</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>滚动条</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>滑块和旋钮</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>数值框</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>推流</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>凹陷</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>切出</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>图标旁文本</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>有文本的标签页宽度相同；无文本的标签页填满整栏。</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>图标下文本</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>上方刻度</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>下方刻度</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>两侧刻度</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>仅标题</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>两秒</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>未选中</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>指针在向上上</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>按下向上</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>垂直进度条</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>垂直滑块</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>垂直，两侧</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>垂直，反向</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>垂直，无刻度</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>垂直，左侧刻度</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>垂直，右侧刻度</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>划像</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>带图标</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>带菜单</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>带刻槽</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>无边框</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>演出(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>缺少一个信号源。</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>放不下的长标题</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>上方，第二个</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>上方，第二行</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像机 %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>摄像机、播放器和字幕</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>已选中，禁用</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>已选中，带图标</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>可关闭、可移动，带图标</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>复制上一场的信号源</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>对话框和提示</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>文档模式，一个标签页禁用</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>晚间演出</translation>
    </message>
    <message>
        <source>First</source>
        <translation>第一个</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>分组框和边框</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>非活动窗口</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键控</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>键控</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>单行编辑框</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>列表、表格和树</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>主窗口</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>指针在最大化上</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>按下最大化</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>已最大化</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>已最小化</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>最小化的窗口</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>混音器</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>标签页多于空间</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>演出名称</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>新建演出</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未选中</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>未选中，带图标</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>没有更多</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>二选一</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预监</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>主输出</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>播放字幕。
淡出到黑场。</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>橡皮筋选框</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>关闭前保存吗？</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第二个</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>分节</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>多行</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>卷起的窗口</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>演出 %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>信号源 %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>信号源</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>样式面板</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>默认项</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>另一个</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>串联单自上次保存后已更改。</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>标题右对齐</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>三角形，上方</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>三角形，下方</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>三角形，左侧</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>三角形，右侧</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>竖排标题</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>它叫什么？</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>带帮助的窗口</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>窗口中的窗口</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>带清除按钮</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>带提示</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>有选中内容</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>带图标</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>渐变条：按下添加，拖动移动，拖离删除，双击选择颜色</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>所选颜色的不透明度</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>按钮：单击打开对话框，将一种颜色拖到另一种上</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>（已确认）</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>（预览）</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>色条和圆点</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>闪烁</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>舞台左侧</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>舞台右侧</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>片头</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>采访</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>录像机</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>无输出</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>所有输出</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>未确定</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>今晚演播室现场直播</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>其列表</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>均未选中</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>选中若干项</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>全部选中</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>无项目</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>它们的列表</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>带预览的字体</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>分组和勾选组合框</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>将下一个 Cue 切到直播？</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>从现在起使用自定义按钮文本</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>切到直播</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>气泡提示</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>录制磁盘还可录制五分钟。</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>文件选择器</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>媒体文件</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>最近的视频</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>报告的值</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>信箱模式</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>调整大小延迟</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>对话框和选择器</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>拖放的文件显示在下方</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>（不是本地文件）</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>将文件拖放到此处</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>使用项目委托的图标</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>将一个片段拖到另一个上。</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>列表末尾</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>已将“%1”放到“%2”上。</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>报告移动，由宿主移动</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>按原样拖动行</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>拖动所选的行。</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>可拖放的列表</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 条消息</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>学习</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>打开虚拟端口</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>没有打开的端口。</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>没有运行的 MIDI 服务，或者它没有端口。</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 已打开。</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>已请求虚拟端口 %1。</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>发送到输出</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>音符（按住）</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>控制器 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>为电平学习一条消息</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>模拟每秒 10,000 条消息的数据流</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>圆环</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>条形</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>忙碌转轮</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>转动灰色转轮</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>修剪片段</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>第 %1 帧</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>入点 %1   出点 %2   时长 %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>范围手柄</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>对称移动</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>实时跟踪</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>区间</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>手柄可交叉</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>手柄可相遇</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>手柄保持间隔</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>带刻度</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1：已触发</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>单击字段，然后按下按键</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>下一个 Cue</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>全场压暗</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>这些是本页的快捷键，仅在没有字段获得焦点时有效。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>单击跳转、拖动、悬停</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>不跳转</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>不发信号地将电平设为 30</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>推子</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>推子</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>搜索框，空</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>采访</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>搜索框，有文本</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>片头字幕，第二版</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>能放下的标签</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>右侧截断</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>中间截断</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>左侧截断</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>正在编辑</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>单击名称进行编辑。</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>已重命名为“%1”</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>文本框</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>（新的编辑）</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>在数字上拖动；单击可输入</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>Ctrl 使拖动速度加倍，Shift 使其减半。</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>将混合选择显示为 --</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>打开端口</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>本库控件</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>标准控件</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>模拟控制器</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>色标 %1</translation>
    </message>
    <message>
        <source>Select color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>上限</translation>
    </message>
</context>
</TS>
